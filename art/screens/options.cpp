// The options and the page of the control keys.
#include "art/families.h"
#include "art/objects/ball.h"
#include "art/objects/professor.h"
#include "art/screens/pages.h"

namespace
{
struct Row {
	const char* text;
	int x, y; // where it ends and its middle, on the screen
};
} // namespace

// A picture of labels whose corner falls to (left, top) of the screen.
static Image Labels(int left, int top, int w, int h, const std::vector<Row>& rows, float size = 17)
{
	Canvas canvas(w, h);
	for (const Row& row : rows)
		PrintLabel(canvas, row.text, row.x - left, row.y - top, size);
	return canvas.Finish();
}

static Image ProfessorBust()
{
	const float ZOOM = 2.5f;
	const int W = 90, H = 130;
	Image image(W, H);
	Image bust = Professor({}, PROFESSOR_WINDOW, ZOOM);
	ComposeCentred(image, bust, W * .5f, H * .5f);
	return image;
}

static void DrawOptionsBoard(Sink& sink)
{
	sink.Add("optionsmain.png", PaperPanel(352, 478));
	sink.Add("optionstitle.png", TitlePlank(179, 60, "Options", 32));
	Canvas canvas(308, 272);
	DrawWell(canvas, 1, 1, 306, 63);
	DrawWell(canvas, 1, 74, 306, 60);
	DrawWell(canvas, 1, 144, 202, 127);
	sink.Add("optionsdivisions.png", canvas.Finish());
	sink.Add("optionstextA.png",
	         Labels(281, 151, 96, 46, {{"Sound", 374, 160}, {"Music", 374, 187}}));
	sink.Add("optionstextB.png",
	         Labels(258, 224, 190, 46, {{"Mouse speed", 374, 233}, {"System pointer", 443, 256}}));
	sink.Add("optionstextC.png", Labels(280, 293, 138, 116,
	                                    {{"Full screen", 414, 301},
	                                     {"Weather effects", 414, 325},
	                                     {"Hint pages", 414, 349},
	                                     {"Animal quiz", 414, 373},
	                                     {"Kids' shield", 414, 397}}));
	sink.Add("optionsprof.png", ProfessorBust());
	AddCapsule(sink, "optionsbuttoncontrols", 106, 33, "Controls", PAINT_NEUTRAL, 18);
	AddCapsule(sink, "optionsbuttonback", 106, 33, "Back", PAINT_GO, 18);
}

// --- control keys

static Image KeyField(ButtonLook look)
{
	const int W = 124, H = 34;
	Canvas canvas(W, H);
	if (look == ButtonLook::Shadow) {
		canvas.DropShadow(RoundRect(2, 2, W - 4.f, H - 4.f, 6), 1.6f, 0, 0, .5f);
		return canvas.Finish();
	}
	bool warm = look == ButtonLook::Rollover;
	DrawWindow(canvas, 4, 4, W - 8.f, H - 8.f, HexColour(warm ? 0x4a94c8 : 0x28587e), 4.5f);
	if (warm)
		canvas.Stroke(RoundRect(2.2f, 2.2f, W - 4.4f, H - 4.4f, 6), HexColour(0xfff2b2), 1.4f);
	return canvas.Finish();
}

// What the four keys do, one small drawing a well.
static void DrawActions(Canvas& canvas, float y, float step)
{
	const float X = 36;
	for (int row = 0; row < 2; row++)
		canvas.Body(Arrow(X, y + row * step, 36, 9, row ? 0 : PI), Plain(PAINT_SUNNY),
		            InkOf(PAINT_SUNNY), 1.1f, 1.8f, 2.6f, .2f);
	const int BALL = 26;
	float launch   = y + 2 * step;
	canvas.Place(Bubble(BALL, BubbleSkin::Normal, .2f), (int)X - BALL / 2, (int)launch - 24);
	canvas.Body(Arrow(X, launch + 16, 24, 7, -PI / 2), Plain(PAINT_SUNNY), InkOf(PAINT_SUNNY), 1.1f,
	            1.6f, 2.6f, .2f);
	Image fan = MachineFan(0, 1.9f);
	canvas.Place(fan, (int)X - fan.width / 2, (int)(y + 3 * step) - fan.height / 2);
}

static void DrawControls(Sink& sink)
{
	const int STEP = 69;
	Canvas canvas(308, 280);
	for (int i = 0; i < 4; i++)
		DrawWell(canvas, 1, 12 + i * STEP, 306, 60);
	DrawActions(canvas, 12 + 30, STEP);
	sink.Add("optionscontrolsdivisions.png", canvas.Finish());
	sink.Add("optionscontrolstitle.png", TitlePlank(179, 60, "Controls", 32));
	const char* const labels[] = {"Move left", "Move right", "Launch, fire\n(left button)",
	                              "Fan\n(right button)"};
	const int tops[]           = {171, 240, 302, 372};
	for (int i = 0; i < 4; i++)
		sink.Add(
		    std::string("optionscontrolstext") + (char)('A' + i) + ".png",
		    Labels(280, tops[i], 136, i < 2 ? 26 : 40, {{labels[i], 412, 183 + i * STEP}}, 16));
	sink.Add("optionscontrolsinputbase.png", KeyField(ButtonLook::Base));
	sink.Add("optionscontrolsinputrollover.png", KeyField(ButtonLook::Rollover));
	sink.Add("optionscontrolsinputshadow.png", KeyField(ButtonLook::Shadow));
	Canvas cursor(4, 22);
	cursor.Fill(RoundRect(.9f, 1, 2.2f, 20, 1.1f), HexColour(0xffe060));
	sink.Add("optionscontrolscursor.png", cursor.Finish());
	AddCapsule(sink, "optionsbuttonreset", 140, 33, "Usual keys", PAINT_NEUTRAL, 17);
	AddCapsule(sink, "optionsbuttonsave", 69, 33, "Save", PAINT_GO, 17);
	AddCapsule(sink, "optionsbuttoncancel", 69, 33, "Cancel", PAINT_STOP, 16);
}

void AddOptionsPages(Catalogue& catalogue)
{
	catalogue.Add("pages/options", __FILE__, DrawOptionsBoard);
	catalogue.Add("pages/controls", __FILE__, DrawControls);
}
