// Numbers of a stored file, little-endian, in one order for reading and writing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Walks a file's bytes. The same calls write the values or fill them, so that a layout stands in
// one place only. A value that does not lie whole within the bytes read keeps what it held.
class CByteStream
{
public:
	CByteStream() : writing(true) {}
	explicit CByteStream(const std::vector<unsigned char>& data) : bytes(data), writing(false) {}

	void Byte(uint8_t& value);
	void Int(int32_t& value);
	void Long(uint64_t& value);
	void Float(float& value); // IEEE 754 single precision
	void Block(uint8_t* values, size_t count);

	std::vector<unsigned char> bytes;
	size_t at = 0; // next byte to be read
	bool writing;

private:
	bool Transfer(uint64_t& value, int size);
};
