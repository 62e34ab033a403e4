// Numbers of a stored file, little-endian, in one order for reading and writing.
#include "state/byte_stream.h"

#include <cstring>

// True when the value was read; a writing stream leaves it as it is.
bool CByteStream::Transfer(uint64_t& value, int size)
{
	if (writing) {
		for (int i = 0; i < size; i++)
			bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
		return false;
	}
	size_t start = at;
	at += size;
	if (at > bytes.size())
		return false;
	value = 0;
	for (int i = 0; i < size; i++)
		value |= static_cast<uint64_t>(bytes[start + i]) << (8 * i);
	return true;
}

void CByteStream::Byte(uint8_t& value)
{
	uint64_t wide = value;
	if (Transfer(wide, 1))
		value = static_cast<uint8_t>(wide);
}

void CByteStream::Int(int32_t& value)
{
	uint64_t wide = static_cast<uint32_t>(value);
	if (Transfer(wide, 4))
		value = static_cast<int32_t>(static_cast<uint32_t>(wide));
}

void CByteStream::Long(uint64_t& value)
{
	Transfer(value, 8);
}

void CByteStream::Float(float& value)
{
	uint32_t bits;
	std::memcpy(&bits, &value, sizeof bits);
	uint64_t wide = bits;
	if (Transfer(wide, 4)) {
		bits = static_cast<uint32_t>(wide);
		std::memcpy(&value, &bits, sizeof value);
	}
}

void CByteStream::Block(uint8_t* values, size_t count)
{
	for (size_t i = 0; i < count; i++)
		Byte(values[i]);
}
