// Check boxes, sliders, the text field, cursors, the fader and the markers of the debug overlay.
#include "art/families.h"
#include "art/screens/kit.h"

static const int SLIDER_WIDTH = 112, SLIDER_HEIGHT = 26, SLIDER_PIPS = 11;
static const float TUBE_TOP = 6.6f, TUBE_HEIGHT = 12.8f; // on one line with the step buttons
static const float PIP_TOP = 9, PIP_HEIGHT = 8;
static const int FIELD_WIDTH = 168, FIELD_HEIGHT = 32;
static const int SCREEN_WIDTH = 800, SCREEN_HEIGHT = 600;

// --- check box

static Image CheckBox(bool on, bool rollover)
{
	Canvas canvas(26, 26);
	DrawWell(canvas, 3, 4, 18, 18, rollover ? HexColour(0xfff2b2) : HexColour(0xfffaf0), 4);
	if (rollover)
		canvas.Stroke(RoundRect(2.4f, 3.4f, 19.2f, 19.2f, 4.4f), HexColour(0xffb428), 1.3f);
	if (on) {
		PathFn tick = Line({{6.5f, 12.5f}, {11, 17.5f}, {20, 4.5f}});
		canvas.Stroke(tick, InkOf(PAINT_GO), 6.2f);
		canvas.Stroke(tick, HexColour(rollover ? 0x6cd858 : 0x52c242), 3.8f);
		canvas.Stroke(tick, HexColour(0xa8ea7c), 1.1f, .8f);
	}
	return canvas.Finish();
}

static void DrawCheckBoxes(Sink& sink)
{
	sink.Add("optionscheckboxuncheckedbase.png", CheckBox(false, false));
	sink.Add("optionscheckboxuncheckedrollover.png", CheckBox(false, true));
	sink.Add("optionscheckboxcheckedbase.png", CheckBox(true, false));
	sink.Add("optionscheckboxcheckedrollover.png", CheckBox(true, true));
}

// --- slider: value v shows the first 10 v + 2 pixels, so a pip ends at each 10 k + 10

static Image SliderFill()
{
	Canvas canvas(SLIDER_WIDTH, SLIDER_HEIGHT);
	for (int i = 0; i < SLIDER_PIPS; i++) {
		float t    = i / (float)(SLIDER_PIPS - 1);
		Colour c   = Mix(HexColour(0x58d0ff), HexColour(0x58e070), t);
		PathFn pip = RoundRect(i * 10 + 2.6f, PIP_TOP, 7.6f, PIP_HEIGHT, 2.4f);
		canvas.Body(pip, Downward(Lighter(c, .3f), Darker(c, .3f), PIP_TOP - 1, PIP_TOP + 9),
		            InkOf(c), .7f, 1.2f, 2.6f, .4f);
	}
	return canvas.Finish();
}

static PathFn SliderTube()
{
	return RoundRect(.8f, TUBE_TOP, SLIDER_WIDTH - 1.6f, TUBE_HEIGHT, 5);
}

static Image SliderShadow()
{
	Canvas canvas(SLIDER_WIDTH, SLIDER_HEIGHT);
	canvas.Fill(SliderTube(), HexColour(0x203448));
	canvas.InnerShadow(SliderTube(), 1.6f, {0, 0, 0}, .6f);
	for (int i = 0; i < SLIDER_PIPS; i++)
		canvas.Fill(RoundRect(i * 10 + 2.6f, PIP_TOP, 7.6f, PIP_HEIGHT, 2.4f), HexColour(0x3c566e),
		            .7f);
	return canvas.Finish();
}

static Image SliderFrame()
{
	Canvas canvas(SLIDER_WIDTH, SLIDER_HEIGHT);
	canvas.Stroke(SliderTube(), PAINT_BRASS_INK, 2.6f);
	canvas.Stroke(SliderTube(), PAINT_BRASS, 1.5f);
	canvas.Fill(RoundRect(4, PIP_TOP - 1, SLIDER_WIDTH - 8.f, 3, 1.5f), PAINT_WHITE, .22f);
	return canvas.Finish();
}

static Image StepButton(bool plus, ButtonLook look)
{
	Canvas canvas(20, 22);
	PathFn face = Disc(9.5f, 10, 8);
	if (look == ButtonLook::Shadow) {
		canvas.DropShadow(face, 1.6f, 0, 0, .55f);
		return canvas.Finish();
	}
	Colour base = look == ButtonLook::Rollover ? Mix(PAINT_NEUTRAL, HexColour(0xfff2b2), .35f)
	                                           : PAINT_NEUTRAL;
	canvas.Body(face, Downward(Lighter(base, .25f), Darker(base, .3f), 2, 18), InkOf(PAINT_NEUTRAL),
	            1.2f, 1.8f, 3, .35f);
	Colour sign = look == ButtonLook::Rollover ? HexColour(0xffffcc) : PAINT_WHITE;
	canvas.Fill(RoundRect(5, 8.7f, 9, 2.6f, 1), sign);
	if (plus)
		canvas.Fill(RoundRect(8.2f, 5.5f, 2.6f, 9, 1), sign);
	return canvas.Finish();
}

static void DrawSlider(Sink& sink)
{
	const int GREY_WIDTH = 160, GREY_HEIGHT = 36; // covers the slider and its two buttons
	sink.Add("optionssliderslider.png", SliderFill());
	sink.Add("optionsslidershadow.png", SliderShadow());
	sink.Add("optionssliderframe.png", SliderFrame());
	Canvas grey(GREY_WIDTH, GREY_HEIGHT);
	grey.Fill(RoundRect(0, 4, GREY_WIDTH, GREY_HEIGHT - 5.f, 9), HexColour(0xeeddb2), .72f);
	sink.Add("optionsslidergreyout.png", grey.Finish());
	for (int plus = 0; plus < 2; plus++) {
		std::string stem = plus ? "optionssliderbuttonplus" : "optionssliderbuttonminus";
		sink.Add(stem + "base.png", StepButton(plus, ButtonLook::Base));
		sink.Add(stem + "rollover.png", StepButton(plus, ButtonLook::Rollover));
		sink.Add(stem + "shadow.png", StepButton(plus, ButtonLook::Shadow));
	}
}

// --- text field: fifteen letters of 10 px from (6, 6)

static void DrawTextField(Sink& sink)
{
	Canvas canvas(FIELD_WIDTH, FIELD_HEIGHT);
	canvas.Body(RoundRect(1.2f, 1.2f, FIELD_WIDTH - 2.4f, FIELD_HEIGHT - 2.4f, 7),
	            Plain(PAINT_BRASS), PAINT_BRASS_INK, .9f, 1.6f, 3, .6f);
	PathFn inside = RoundRect(4, 4, FIELD_WIDTH - 8.f, FIELD_HEIGHT - 8.f, 4.5f);
	canvas.Fill(inside, PAINT_BRASS_INK, 1, .8f);
	canvas.FillAt(inside, Downward(HexColour(0x3a6c94), HexColour(0x5a94bc), 4, 28));
	canvas.InnerShadow(inside, 1.8f, {0, .04f, .12f}, .6f);
	sink.Add("profileenternameinputfield.png", canvas.Finish());
	Canvas cursor(4, 22);
	cursor.Fill(RoundRect(.8f, 1, 2.4f, 20, 1.2f), HexColour(0x3a2a1c), 1, .8f);
	cursor.Fill(RoundRect(.9f, 1.2f, 2.2f, 19.6f, 1.1f), HexColour(0xffe060));
	sink.Add("profilenternamecursor.png", cursor.Finish());
}

// --- cursors

// The hot spot is the upper left corner.
static void DrawCursor(Sink& sink)
{
	Canvas canvas(26, 34, 6);
	PathFn arrow = Polygon({{1.6f, 1.6f},
	                        {1.6f, 23},
	                        {6.8f, 18.4f},
	                        {10.6f, 26.8f},
	                        {14.8f, 24.9f},
	                        {11, 16.8f},
	                        {17.8f, 16.2f}});
	canvas.DropShadow(arrow, 1.3f, 1.6f, 2.4f, .45f);
	canvas.Fill(arrow, HexColour(0x14304e), 1, 1.5f);
	canvas.Relief(arrow, Downward(HexColour(0xffffff), HexColour(0x9cd4f8), 2, 25), 1.4f, 2.4f,
	              .3f);
	sink.Add("mouse_cursor.tga", canvas.Finish());
}

static void DrawHourglass(Sink& sink)
{
	const float W = 30, H = 38, X = 14, TOP = 5, BOTTOM = 31;
	Canvas canvas((int)W, (int)H, 6);
	float middle = (TOP + BOTTOM) * .5f;
	PathFn glass = [=](cairo_t* c) {
		cairo_move_to(c, X - 8, TOP);
		cairo_curve_to(c, X - 8, middle - 3, X - 2, middle - 3, X - 1.6f, middle);
		cairo_curve_to(c, X - 2, middle + 3, X - 8, middle + 3, X - 8, BOTTOM);
		cairo_line_to(c, X + 8, BOTTOM);
		cairo_curve_to(c, X + 8, middle + 3, X + 2, middle + 3, X + 1.6f, middle);
		cairo_curve_to(c, X + 2, middle - 3, X + 8, middle - 3, X + 8, TOP);
		cairo_close_path(c);
	};
	canvas.DropShadow(glass, 1.4f, 1.6f, 2.4f, .45f);
	canvas.Fill(glass, HexColour(0x1c4468), 1, 1.3f);
	canvas.FillAt(glass, Downward(HexColour(0xe8f8ff), HexColour(0xb4dcf4), TOP, BOTTOM));
	Field inside = canvas.Mask(glass);
	PathFn sand = Joined({Polygon({{X - 9, 12}, {X + 9, 12}, {X + .8f, middle}, {X - .8f, middle}}),
	                      Polygon({{X, 23.4f}, {X + 9, BOTTOM}, {X - 9, BOTTOM}}),
	                      RoundRect(X - .7f, middle - 2, 1.4f, 10, .5f)});
	canvas.FillMask(Product(canvas.Mask(sand), inside), HexColour(0xffb428));
	for (float y : {2.6f, 29.6f})
		canvas.Body(RoundRect(X - 10.4f, y, 20.8f, 4.2f, 2), Plain(PAINT_BRASS), PAINT_BRASS_INK, 1,
		            1.3f, 3, .7f);
	canvas.Fill(Oval(X - 4, 10, 1.3f, 3, .2f), PAINT_WHITE, .8f);
	sink.Add("mouse_hourglass.tga", canvas.Finish());
}

// --- markers and fader

static void DrawMarkers(Sink& sink)
{
	Image point(3, 3);
	for (int i = 0; i < 9; i++)
		Blend(point, i % 3, i / 3, i == 4 ? HexColour(0xffffff) : HexColour(0xff2040),
		      i & 1 ? 1 : .9f);
	sink.Add("collision.png", point);
	sink.Add("dirty.png", Filled(1, 1, HexColour(0xff30ff)));
	// Dark blue rather than black, a little lighter where the eye rests.
	Image fader(SCREEN_WIDTH, SCREEN_HEIGHT);
	for (int y = 0; y < SCREEN_HEIGHT; y++)
		for (int x = 0; x < SCREEN_WIDTH; x++) {
			float far = std::hypot((x - 400) / 400.f, (y - 300) / 300.f);
			Blend(fader, x, y, {.03f, .06f, .14f}, Mix(.46f, .60f, Smoothstep(.3f, 1.3f, far)));
		}
	sink.Add("gui_fader.png", fader);
}

void AddWidgets(Catalogue& catalogue)
{
	catalogue.Add("widgets/checkbox", __FILE__, DrawCheckBoxes);
	catalogue.Add("widgets/slider", __FILE__, DrawSlider);
	catalogue.Add("widgets/field", __FILE__, DrawTextField);
	catalogue.Add("widgets/cursors", __FILE__, [](Sink& sink) {
		DrawCursor(sink);
		DrawHourglass(sink);
	});
	catalogue.Add("widgets/markers", __FILE__, DrawMarkers);
}
