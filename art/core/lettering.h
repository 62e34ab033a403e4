// Texts as outlines, set with the three faces of the game.
#pragma once

#include <cairo.h>
#include <functional>
#include <string>

using PathFn = std::function<void(cairo_t*)>; // adds an outline to the path, in pixels

enum class Align { Left, Centre, Right };
extern const char* const DISPLAY_FACE; // Dosis ExtraBold: titles, buttons, labels
extern const char* const SPEECH_FACE;  // Comic Neue Bold: speech and long texts
extern const char* const PRINT_FACE;   // Cabin SemiBold: small print

// Lettering as an outline. y is the middle of the capitals (of the whole block for several lines),
// so that captions with and without descenders stand on one line. size in pixels.
PathFn Lettering(const std::string& text, float size, float x, float y, Align align = Align::Centre,
                 const char* face = DISPLAY_FACE);
// Width of the widest line in pixels.
float LetteringWidth(const std::string& text, float size, const char* face = DISPLAY_FACE);
// Breaks a text into lines no wider than `width` pixels.
std::string Wrapped(const std::string& text, float size, float width,
                    const char* face = DISPLAY_FACE);
// Empty when the three faces above are installed, else one line that names the missing package.
std::string MissingFont();
