// The machine in the main menu's picture, and the professor at its wheel.
#include "art/screens/menu_driver.h"

#include "art/families.h"
#include "art/objects/professor.h"

static const float MACHINE_ZOOM = 1.85f;
// Where its anchor and the field line y 496 fall on the screen.
static const float MACHINE_X = 330.25f, MACHINE_Y = 300.85f;

void DrawMenuMachine(Image& scene)
{
	DrawContactShadow(scene, 402, 478, 96, 12, .5f);
	DrawMachine(scene, MACHINE_X, MACHINE_Y, MACHINE_ZOOM, false);
}

static std::vector<ProfessorPose> LooksAbout()
{
	const float TURN[] = {0, 0, -.2f, -.5f, -.55f, -.5f, .1f, .5f, .55f, .5f, .25f, .1f};
	const float LID[]  = {0, .6f, 1, 0, 0, 0, 1, 0, 0, 0, .6f, 0};
	std::vector<ProfessorPose> list(12);
	for (size_t i = 0; i < list.size(); i++) {
		list[i].turn  = TURN[i];
		list[i].lid   = LID[i];
		list[i].lean  = TURN[i] * 3;
		list[i].tilt  = TURN[i] * .16f;
		list[i].steer = -TURN[i] * .5f;
	}
	return list;
}

// Pushes his glasses up, then waves to whoever looks at him.
static std::vector<ProfessorPose> Waves()
{
	const Vec3 GLASSES = {5.6f, .2f, 9.5f}, SIDE = {15.5f, .5f, 4};
	const Vec3 WAG[]    = {{2.4f, 0, 0}, {0, 1.2f, 0}, {-2.4f, 0, 0}};
	const float REACH[] = {0, .5f, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, .7f, .3f, 0};
	const float WAVE[]  = {0, 0, 0, 0, 0, .5f, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0};
	std::vector<ProfessorPose> list(16);
	for (size_t i = 0; i < list.size(); i++) {
		bool waves    = i >= 6 && i <= 12;
		list[i].reach = REACH[i];
		list[i].hand  = Mix(GLASSES, SIDE, WAVE[i]);
		if (waves)
			list[i].hand = list[i].hand + WAG[i % 3];
		list[i].lid  = i == 3 ? 1 : 0;
		list[i].tilt = waves ? .10f : 0;
		list[i].lean = waves ? 1 : 0;
		list[i].turn = waves ? .12f : 0;
		list[i].glee = waves ? 1 : i == 5 || i == 13 ? .5f : 0;
	}
	return list;
}

static void DrawProfessor(Sink& sink, const char* word, std::vector<ProfessorPose> (*poses)())
{
	const PartWindow SEAT = {15, 515, 52, 46}; // falls on the screen from (358, 336)
	std::vector<Image> frames;
	for (const ProfessorPose& pose : poses())
		frames.push_back(Professor(pose, SEAT, MACHINE_ZOOM));
	sink.AddFrames(std::string("mainmenuprof") + word, frames);
}

void AddMenuDriver(Catalogue& catalogue)
{
	catalogue.Add("menu/professor looks", __FILE__,
	              [](Sink& sink) { DrawProfessor(sink, "A", LooksAbout); });
	catalogue.Add("menu/professor waves", __FILE__,
	              [](Sink& sink) { DrawProfessor(sink, "B", Waves); });
}
