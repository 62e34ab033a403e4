// A picture of screen size, composed once, on one sprite.
#include "screens/card.h"

#include "media/cursor.h"
#include "media/display.h"
#include "media/font.h"
#include "media/render_manager.h"
#include "media/sprite.h"

#include <cstdio>

CCard::CCard(int depth, bool fader)
    : image(g_display->SnapshotScreen()), sprite(new CSprite(0, 0, depth))
{
	if (fader)
		Draw("gui_fader.png", 0, 0);
	sprite->AddImage(image);
}

CCard::~CCard()
{
	delete sprite;
}

void CCard::Draw(const std::string& file, int x, int y)
{
	g_display->DrawFile(file, image, x, y, false);
}

void CCard::Draw(std::span<const CardPart> parts)
{
	for (const CardPart& part : parts)
		Draw(part.file, part.x, part.y);
}

void CCard::Write(const std::string& text, int alignment, int x, int y)
{
	DrawText(text, image, static_cast<TextAlignment>(alignment), x, y);
}

int CCard::DrawNumber(const char* format, int value, int x, int y, int advance)
{
	for (char digit : std::to_string(value)) {
		char name[80];
		std::snprintf(name, sizeof name, format, digit - '0');
		Draw(name, x, y);
		x += advance;
	}
	return x;
}

void PaintWithoutCursor()
{
	HideCursor(-1);
	g_render->Update(true);
}

int PictureWidth(const std::string& file)
{
	const int picture = g_display->LoadImage(file);
	const int width   = g_display->ImageWidth(picture);
	g_display->ReleaseImage(picture);
	return width;
}

int PictureHeight(const std::string& file)
{
	const int picture = g_display->LoadImage(file);
	const int height  = g_display->ImageHeight(picture);
	g_display->ReleaseImage(picture);
	return height;
}
