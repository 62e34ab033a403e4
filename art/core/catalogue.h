// The list of everything that can be drawn, in groups that are drawn and cached one by one.
#pragma once

#include "art/core/image.h"

#include <functional>
#include <string>
#include <vector>

enum class Encoding { Png, Tga, Jpeg, Bmp };

// A finished file of the game's data.
struct Picture {
	std::string name;
	std::string bytes;
	int width = 0, height = 0; // pixels; 0 for what is no picture
};

// Receives the pictures of one group while it is drawn. One sink belongs to one thread.
class Sink
{
public:
	// Encodes the picture by the extension of its name: .png, .tga or .jpg.
	void Add(const std::string& name, const Image& image);
	// The same where the name doesn't tell the encoding (`loading.dat`).
	void AddAs(const std::string& name, const Image& image, Encoding encoding);
	// The frames of a sequence as <stem>0.png, <stem>1.png and so on, all of one size.
	void AddFrames(const std::string& stem, const std::vector<Image>& frames, int first = 0,
	               const std::string& extension = ".png");
	// What is no picture, as it stands: sounds (.ogg) and music (.mdt).
	void AddBytes(const std::string& name, std::string bytes);

	std::vector<Picture> pictures; // in order of Add
};

// One piece of work, about 0.1 to 3 seconds: draws one picture or a sequence. Groups run in
// parallel, so `draw` must not touch shared mutable state.
struct Group {
	std::string name;
	std::string source; // the file whose change asks for a new drawing
	std::function<void(Sink&)> draw;
};

class Catalogue
{
public:
	// Pass __FILE__ as source: the group is drawn anew when that file, what it includes from art/,
	// or the .cpp twins of those headers changed. Group names are unique.
	void Add(const std::string& group, const char* source, std::function<void(Sink&)> draw);

	std::vector<Group> groups;
};
