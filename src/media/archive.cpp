// Reading of container files: one read of the whole file, then a walk through its table.
#include "media/archive.h"

#include "frame/debug.h"

#include <cstdint>
#include <cstdio>

static const size_t WORD         = 4;        // bytes of an integer in a container
static const size_t ENTRY_HEADER = 2 * WORD; // data size, name length
static const size_t READ_CHUNK   = 4u << 20; // bytes

// One entry's places within the file's bytes.
struct EntryView {
	std::string name;
	const unsigned char* data = nullptr;
	size_t size               = 0; // bytes
	size_t extent             = 0; // bytes of header, name and data together
};

bool ReadWholeFile(const std::string& path, Bytes& data)
{
	data.clear();
	FILE* file = fopen(path.c_str(), "rb");
	if (!file)
		return false;
	// A length asked for beforehand can be wrong, of a folder even absurd: it only sizes the
	// chunks.
	size_t chunk = READ_CHUNK;
	if (fseek(file, 0, SEEK_END) == 0) {
		const long length = ftell(file);
		if (length > 0 && length < (1L << 30))
			chunk = static_cast<size_t>(length) + 1;
		rewind(file);
	}
	size_t used = 0;
	for (;;) {
		data.resize(used + chunk);
		const size_t got = fread(data.data() + used, 1, chunk, file);
		used += got;
		if (got < chunk)
			break;
		chunk = READ_CHUNK;
	}
	const bool whole = !ferror(file);
	fclose(file);
	data.resize(whole ? used : 0);
	return whole;
}

static uint32_t ReadWord(const unsigned char* at)
{
	return at[0] | at[1] << 8 | at[2] << 16 | static_cast<uint32_t>(at[3]) << 24;
}

// False when any part of the entry lies past the file's end.
static bool ViewEntry(const Bytes& file, size_t offset, EntryView& view)
{
	if (offset > file.size() || file.size() - offset < ENTRY_HEADER)
		return false;
	const unsigned char* header = file.data() + offset;
	const size_t dataSize       = ReadWord(header);
	const size_t nameLength     = ReadWord(header + WORD);
	const size_t room           = file.size() - offset - ENTRY_HEADER;
	if (nameLength > room || dataSize > room - nameLength)
		return false;
	const unsigned char* name = header + ENTRY_HEADER;
	view.name.assign(name, name + nameLength);
	view.data   = name + nameLength;
	view.size   = dataSize;
	view.extent = ENTRY_HEADER + nameLength + dataSize;
	return true;
}

// Delivers what is whole; false when anything was not.
static bool WalkEntries(const Bytes& file, const ArchiveVisitor& visitor)
{
	if (file.size() < WORD) {
		if (visitor.onCount)
			visitor.onCount(0);
		return false;
	}
	const size_t claimed = ReadWord(file.data());
	const size_t room    = (file.size() - WORD) / WORD;
	const size_t count   = claimed < room ? claimed : room;
	bool whole           = claimed <= room;
	if (visitor.onCount)
		visitor.onCount(static_cast<unsigned int>(count));

	// Whole entries do not overlap. Without this bound a small file could name one piece of data
	// over and over and fill the memory.
	size_t budget = file.size();
	EntryView view;
	for (size_t i = 0; i < count; i++) {
		if (!ViewEntry(file, ReadWord(file.data() + WORD * (i + 1)), view) ||
		    view.extent > budget) {
			whole = false;
			continue;
		}
		budget -= view.extent;
		if (!visitor.wants || visitor.wants(view.name))
			visitor.onEntry(view.name, Bytes(view.data, view.data + view.size));
	}
	return whole;
}

bool ForEachArchiveEntry(const std::string& path, const ArchiveVisitor& visitor)
{
	Bytes file;
	if (!ReadWholeFile(path, file))
		return false;
	if (!WalkEntries(file, visitor))
		Error("Damaged resource file: ", path, false, true);
	return true;
}

Bytes ReadArchiveEntry(const std::string& path, const std::string& name)
{
	Bytes found;
	bool isFound = false;
	ArchiveVisitor visitor;
	visitor.wants   = [&](const std::string& entry) { return !isFound && entry == name; };
	visitor.onEntry = [&](const std::string&, Bytes&& data) {
		found   = std::move(data);
		isFound = true;
	};
	if (!ForEachArchiveEntry(path, visitor))
		Error("Cannot load resource file.", true, true);
	if (!isFound)
		Error("Unable to find file within resource: ", name, true, true);
	return found;
}
