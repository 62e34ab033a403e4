// The pictures of some families, drawn for a test.
#pragma once

#include "art/core/catalogue.h"
#include "art/core/image.h"

#include <initializer_list>
#include <map>
#include <string>

using Pictures = std::map<std::string, Image>;
typedef void (*Family)(Catalogue& catalogue);

// All their PNG pictures by file name, or only those of the groups whose name holds one of words.
Pictures DrawFamilies(std::initializer_list<Family> families,
                      std::initializer_list<const char*> words = {});
// An empty picture, and a failure of the running test, when it is not among them.
const Image& PictureNamed(const Pictures& pictures, const std::string& name);
