// Sliders.
#include "media/gui_slider.h"

#include "media/sprite.h"

static const int SHADOW_DEPTH   = 900000;
static const int BAR_DEPTH      = 900100;
static const int FRAME_DEPTH    = 900200;
static const int GREY_OUT_DEPTH = 900201;
static const int GREY_OUT_LEFT  = 23; // pixels beyond the slider
static const int GREY_OUT_ABOVE = 7;
static const int HIGHEST        = 11;
static const int STEP_WIDTH     = 10;  // pixels a step
static const int TENTH_WIDTH    = 102; // pixels of the bar at one below the highest

static CSprite* NewPicture(int x, int y, int depth, const char* file)
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	return sprite;
}

CGuiSlider::CGuiSlider(int x, int y)
{
	shadow  = NewPicture(x, y, SHADOW_DEPTH, "optionsslidershadow.png");
	bar     = NewPicture(x, y, BAR_DEPTH, "optionssliderslider.png");
	frame   = NewPicture(x, y, FRAME_DEPTH, "optionssliderframe.png");
	greyOut = NewPicture(x - GREY_OUT_LEFT, y - GREY_OUT_ABOVE, GREY_OUT_DEPTH,
	                     "optionsslidergreyout.png");
	greyOut->Hide();
}

CGuiSlider::~CGuiSlider()
{
	delete shadow;
	delete bar;
	delete frame;
	delete greyOut;
}

void CGuiSlider::Lower()
{
	if (!disabled)
		SetValue(value - 1);
}

void CGuiSlider::Raise()
{
	if (!disabled)
		SetValue(value + 1);
}

void CGuiSlider::SetValue(int newValue)
{
	value = newValue < 0 ? 0 : newValue > HIGHEST ? HIGHEST : newValue;
	if (value == 0)
		bar->SetWidth(0);
	else if (value == HIGHEST)
		bar->SetWidth(bar->fullWidth);
	else
		bar->SetWidth(TENTH_WIDTH - (HIGHEST - 1 - value) * STEP_WIDTH);
}

void CGuiSlider::SetDisabled(bool on)
{
	disabled        = on;
	greyOut->hidden = !on;
}

bool CGuiSlider::MouseOver() const
{
	return frame->MouseOver(0, 0);
}
