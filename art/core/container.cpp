// Packs and unpacks the container of named files.
#include "art/core/container.h"

static void Append32(std::string& out, size_t value)
{
	for (int i = 0; i < 4; i++)
		out += (char)(value >> (8 * i) & 255);
}

// False when the four bytes lie outside.
static bool Read32(const std::string& bytes, size_t at, size_t& value)
{
	value = 0;
	if (at + 4 > bytes.size())
		return false;
	for (int i = 0; i < 4; i++)
		value |= (size_t)(unsigned char)bytes[at + i] << (8 * i);
	return true;
}

std::string PackContainer(const std::vector<Picture>& pictures)
{
	size_t offset = 4 + 4 * pictures.size(), total = offset;
	for (const Picture& p : pictures)
		total += 8 + p.name.size() + p.bytes.size();
	std::string out;
	out.reserve(total);
	Append32(out, pictures.size());
	for (const Picture& p : pictures) {
		Append32(out, offset);
		offset += 8 + p.name.size() + p.bytes.size();
	}
	for (const Picture& p : pictures) {
		Append32(out, p.bytes.size());
		Append32(out, p.name.size());
		out += p.name;
		out += p.bytes;
	}
	return out;
}

bool UnpackContainer(const std::string& bytes, std::vector<Picture>& pictures)
{
	pictures.clear();
	size_t count = 0;
	if (!Read32(bytes, 0, count) || 4 + 4 * count > bytes.size())
		return false;
	for (size_t i = 0; i < count; i++) {
		size_t at = 0, size = 0, nameLength = 0;
		if (!Read32(bytes, 4 + 4 * i, at) || !Read32(bytes, at, size) ||
		    !Read32(bytes, at + 4, nameLength) || at + 8 + nameLength + size > bytes.size()) {
			pictures.clear();
			return false;
		}
		Picture p;
		p.name  = bytes.substr(at + 8, nameLength);
		p.bytes = bytes.substr(at + 8 + nameLength, size);
		pictures.push_back(std::move(p));
	}
	return true;
}
