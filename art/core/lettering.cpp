// Sets texts with pango, unhinted, and hands them on as outlines.
#include "art/core/lettering.h"

#include <cstring>
#include <pango/pangocairo.h>
#include <vector>

const char* const DISPLAY_FACE = "Dosis ExtraBold";
const char* const SPEECH_FACE  = "Comic Neue Bold";
const char* const PRINT_FACE   = "Cabin SemiBold";

static const float CAPITAL_HEIGHT = .70f; // of the size, near enough for all three faces

// A layout that ignores the settings of the user's desktop. The caller frees it.
static PangoLayout* MakeLayout(cairo_t* c, const std::string& text, float size, const char* face)
{
	PangoLayout* layout           = pango_cairo_create_layout(c);
	PangoContext* context         = pango_layout_get_context(layout);
	cairo_font_options_t* options = cairo_font_options_create();
	cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
	cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
	cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
	pango_cairo_context_set_font_options(context, options);
	pango_cairo_context_set_resolution(context, 96);
	pango_context_set_round_glyph_positions(context, FALSE);
	cairo_font_options_destroy(options);

	PangoFontDescription* font = pango_font_description_from_string(face);
	pango_font_description_set_absolute_size(font, size * PANGO_SCALE);
	pango_layout_set_font_description(layout, font);
	pango_font_description_free(font);
	pango_layout_set_text(layout, text.c_str(), (int)text.size());
	return layout;
}

static PangoAlignment PangoAlign(Align align)
{
	if (align == Align::Left)
		return PANGO_ALIGN_LEFT;
	return align == Align::Centre ? PANGO_ALIGN_CENTER : PANGO_ALIGN_RIGHT;
}

static void AddText(cairo_t* c, const std::string& text, float size, float x, float y, Align align,
                    const char* face)
{
	PangoLayout* layout = MakeLayout(c, text, size, face);
	pango_layout_set_alignment(layout, PangoAlign(align));
	PangoRectangle box;
	pango_layout_get_extents(layout, nullptr, &box);
	float boxLeft = box.x / (float)PANGO_SCALE, boxWidth = box.width / (float)PANGO_SCALE;
	int lines       = pango_layout_get_line_count(layout);
	float lineStep  = box.height / (float)PANGO_SCALE / lines;
	float firstBase = pango_layout_get_baseline(layout) / (float)PANGO_SCALE;
	float capitals  = size * CAPITAL_HEIGHT;
	float block     = lineStep * (lines - 1) + capitals;
	float left      = x - boxLeft;
	if (align == Align::Centre)
		left -= boxWidth * .5f;
	if (align == Align::Right)
		left -= boxWidth;
	cairo_move_to(c, left, y - block * .5f + capitals - firstBase);
	pango_cairo_layout_path(c, layout);
	g_object_unref(layout);
}

PathFn Lettering(const std::string& text, float size, float x, float y, Align align,
                 const char* face)
{
	return [=](cairo_t* c) { AddText(c, text, size, x, y, align, face); };
}

float LetteringWidth(const std::string& text, float size, const char* face)
{
	cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, 8, 8);
	cairo_t* c               = cairo_create(surface);
	PangoLayout* layout      = MakeLayout(c, text, size, face);
	PangoRectangle box;
	pango_layout_get_extents(layout, nullptr, &box);
	g_object_unref(layout);
	cairo_destroy(c);
	cairo_surface_destroy(surface);
	return box.width / (float)PANGO_SCALE;
}

std::string Wrapped(const std::string& text, float size, float width, const char* face)
{
	std::string out, line;
	size_t at = 0;
	while (at < text.size()) {
		size_t end = text.find_first_of(" \n", at);
		if (end == std::string::npos)
			end = text.size();
		std::string word   = text.substr(at, end - at);
		std::string longer = line.empty() ? word : line + " " + word;
		if (!line.empty() && LetteringWidth(longer, size, face) > width) {
			out += line + "\n";
			line = word;
		} else {
			line = longer;
		}
		if (end < text.size() && text[end] == '\n') {
			out += line + "\n";
			line.clear();
		}
		at = end + 1;
	}
	return out + line;
}

std::string MissingFont()
{
	// clang-format off
	static const struct { const char* family; const char* face; const char* package; } s_needed[] = {
		{ "Dosis",      DISPLAY_FACE, "fonts-dosis" },
		{ "Comic Neue", SPEECH_FACE,  "fonts-comic-neue" },
		{ "Cabin",      PRINT_FACE,   "fonts-cabin" },
	};
	// clang-format on
	PangoFontMap* map     = pango_cairo_font_map_get_default();
	PangoContext* context = pango_font_map_create_context(map);
	std::string missing;
	for (const auto& needed : s_needed) {
		PangoFontDescription* wanted = pango_font_description_from_string(needed.face);
		pango_font_description_set_absolute_size(wanted, 20 * PANGO_SCALE);
		PangoFont* font             = pango_font_map_load_font(map, context, wanted);
		PangoFontDescription* found = font ? pango_font_describe(font) : nullptr;
		// Pango answers with some other family when the one asked for isn't there.
		bool fits = found && !std::strcmp(pango_font_description_get_family(found), needed.family);
		if (!fits && missing.empty())
			missing = std::string("The font ") + needed.face + " is not installed (package " +
			          needed.package + ").";
		if (found)
			pango_font_description_free(found);
		if (font)
			g_object_unref(font);
		pango_font_description_free(wanted);
	}
	g_object_unref(context);
	return missing;
}
