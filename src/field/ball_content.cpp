// What the ball has taken in: the table of kinds, the load, and how it moves inside the bubble.
#include "field/ball.h"

#include "field/ball_physics.h"
#include "field/element_point.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <algorithm>
#include <cmath>
#include <iterator>

static const float RIM              = 5;        // pixels between a content and the glass
static const float THICK_RIM_FROM   = 30;       // pixels of radius
static const float BOTTOM_FROM      = 3.01659f; // angles of the bubble's bottom
static const float BOTTOM_TO        = 3.26659f;
static const float SLIDE_STEP       = 0.125f; // radians per frame
static const int FIRST_MOVING_STAGE = 2;

enum ImageKind {
	IMAGES_NAMED,  // the word is a list of file names
	IMAGES_BUBBLE, // the word with both sides' bubble pictures
	IMAGES_RIGHT,  // the right side's only
	IMAGES_WINGS,  // a butterfly's two sides
};

struct KindRow {
	int kind;
	const char* word; // of the file names; names are divided by blanks
	int weight;
	ImageKind images;
	int CBall::*counter; // null where none counts it
};

// clang-format off
static const KindRow s_kinds[] = {
	// kind              word            weight  images         counter
	{POINT_APPLE,     "appleA.png appleB.png appleC.png", 1, IMAGES_NAMED, &CBall::apples},
	{POINT_ACORN,     "acornA.png acornB.png acornC.tga acornD.png", 1, IMAGES_NAMED, &CBall::acorns},
	{POINT_PINECONE,  "pineconeA.png pineconeB.png", 1, IMAGES_NAMED, &CBall::pinecones},
	{POINT_APPLE2,    "apple2A.png apple2B.png apple2C.png", 1, IMAGES_NAMED, &CBall::apples},
	{POINT_EGG_LEFT,  "chickeneggleftbubble.tga chickeneggrightbubble.tga", 1, IMAGES_NAMED, &CBall::eggs},
	{POINT_EGG_RIGHT, "chickeneggleftbubble.tga chickeneggrightbubble.tga", 1, IMAGES_NAMED, &CBall::eggs},
	{POINT_COCONUT,   "coconutA.png coconutB.png coconutC.png", 3, IMAGES_NAMED, &CBall::coconuts},
	{5,  "sheepcapturedA.png sheepcapturedB.png sheepcapturedC.png sheepcapturedD.png", 10, IMAGES_NAMED, nullptr},
	{7,  "turtlecapturedA.png turtlecapturedB.png", 4, IMAGES_NAMED, nullptr},
	{8,  "monkeycapturedleft.png monkeycapturedright.png", 7, IMAGES_NAMED, nullptr},
	{72, "alienbubble.png", 9, IMAGES_NAMED, nullptr},
	{74, "butterflyA", 1, IMAGES_WINGS, nullptr},
	{75, "butterflyB", 1, IMAGES_WINGS, nullptr},
	{76, "butterflyC", 1, IMAGES_WINGS, nullptr},
	{9,  "eagle",       8,  IMAGES_BUBBLE, nullptr},
	{10, "chipmunk",    4,  IMAGES_BUBBLE, nullptr},
	{11, "pig",         12, IMAGES_BUBBLE, nullptr},
	{12, "frog",        5,  IMAGES_BUBBLE, nullptr},
	{13, "cow",         15, IMAGES_BUBBLE, nullptr},
	{14, "horse",       14, IMAGES_BUBBLE, nullptr},
	{15, "dog",         7,  IMAGES_BUBBLE, nullptr},
	{16, "squirrel",    5,  IMAGES_BUBBLE, nullptr},
	{17, "chicken",     6,  IMAGES_BUBBLE, nullptr},
	{20, "coyote",      10, IMAGES_BUBBLE, nullptr},
	{21, "moose",       16, IMAGES_BUBBLE, nullptr},
	{22, "bear",        15, IMAGES_BUBBLE, nullptr},
	{23, "wolf",        11, IMAGES_BUBBLE, nullptr},
	{24, "polarbear",   16, IMAGES_BUBBLE, nullptr},
	{25, "hippo",       18, IMAGES_BUBBLE, nullptr},
	{26, "rhino",       18, IMAGES_BUBBLE, nullptr},
	{27, "deer",        10, IMAGES_BUBBLE, nullptr},
	{28, "ostrich",     12, IMAGES_BUBBLE, nullptr},
	{29, "cat",         6,  IMAGES_BUBBLE, nullptr},
	{30, "snake",       5,  IMAGES_BUBBLE, nullptr},
	{31, "donkey",      11, IMAGES_BUBBLE, nullptr},
	{32, "penguin",     9,  IMAGES_BUBBLE, nullptr},
	{33, "tortoise",    15, IMAGES_BUBBLE, nullptr},
	{34, "camel",       16, IMAGES_BUBBLE, nullptr},
	{35, "duck",        6,  IMAGES_BUBBLE, nullptr},
	{36, "duckling",    3,  IMAGES_BUBBLE, nullptr},
	{37, "goat",        8,  IMAGES_BUBBLE, nullptr},
	{38, "flamingo",    5,  IMAGES_BUBBLE, nullptr},
	{39, "skunk",       6,  IMAGES_BUBBLE, nullptr},
	{40, "rabbit",      5,  IMAGES_BUBBLE, nullptr},
	{41, "seal",        9,  IMAGES_BUBBLE, nullptr},
	{42, "fox",         7,  IMAGES_BUBBLE, nullptr},
	{43, "warthog",     12, IMAGES_BUBBLE, nullptr},
	{44, "kangaroo",    12, IMAGES_BUBBLE, nullptr},
	{45, "kangajoey",   5,  IMAGES_RIGHT,  nullptr},
	{46, "mouse",       3,  IMAGES_BUBBLE, nullptr},
	{47, "raccoon",     8,  IMAGES_BUBBLE, nullptr},
	{48, "pigeon",      5,  IMAGES_BUBBLE, nullptr},
	{50, "owl",         5,  IMAGES_BUBBLE, nullptr},
	{51, "snowyowl",    5,  IMAGES_BUBBLE, nullptr},
	{52, "crow",        5,  IMAGES_BUBBLE, nullptr},
	{53, "vulture",     7,  IMAGES_BUBBLE, nullptr},
	{54, "bluebird",    5,  IMAGES_BUBBLE, nullptr},
	{55, "hare",        5,  IMAGES_BUBBLE, nullptr},
	{56, "jackrabbit",  6,  IMAGES_BUBBLE, nullptr},
	{57, "roadrunner",  5,  IMAGES_BUBBLE, nullptr},
	{58, "zebra",       13, IMAGES_BUBBLE, nullptr},
	{59, "walrus",      12, IMAGES_BUBBLE, nullptr},
	{60, "bighorn",     11, IMAGES_BUBBLE, nullptr},
	{61, "hyena",       11, IMAGES_BUBBLE, nullptr},
	{62, "tiger",       15, IMAGES_BUBBLE, nullptr},
	{63, "snowtiger",   15, IMAGES_BUBBLE, nullptr},
	{64, "lion",        15, IMAGES_BUBBLE, nullptr},
	{65, "bot",         11, IMAGES_BUBBLE, nullptr},
	{66, "lizard",      10, IMAGES_BUBBLE, nullptr},
	{67, "panda",       13, IMAGES_BUBBLE, nullptr},
	{68, "koala",       7,  IMAGES_BUBBLE, nullptr},
	{69, "swan",        8,  IMAGES_BUBBLE, nullptr},
	{70, "goose",       8,  IMAGES_BUBBLE, nullptr},
	{71, "elephant",    18, IMAGES_BUBBLE, nullptr},
	{73, "unicorn",     14, IMAGES_BUBBLE, nullptr},
};

// The least load of each stage.
static const int s_stageLoads[CBall::STAGES] = {
	0, 1, 2, 3, 4, 5, 6, 8, 10, 12, 15, 19, 24, 30, 37, 44, 53, 61, 74,
};
// clang-format on

static const KindRow* RowOf(int kind)
{
	const KindRow* row = std::find_if(std::begin(s_kinds), std::end(s_kinds),
	                                  [kind](const KindRow& each) { return each.kind == kind; });
	return row == std::end(s_kinds) ? nullptr : row;
}

static std::vector<std::string> SplitAtBlanks(const std::string& text)
{
	std::vector<std::string> words;
	for (size_t start = 0; start < text.size();) {
		size_t end = std::min(text.find(' ', start), text.size());
		words.push_back(text.substr(start, end - start));
		start = end + 1;
	}
	return words;
}

int ContentWeight(int kind)
{
	const KindRow* row = RowOf(kind);
	return row ? row->weight : 0;
}

std::vector<std::string> ContentImages(int kind)
{
	const KindRow* row = RowOf(kind);
	if (!row)
		return {};
	std::string word = row->word;
	switch (row->images) {
	case IMAGES_NAMED:
		return SplitAtBlanks(word);
	case IMAGES_RIGHT:
		return {word + "bubbleright.png"};
	case IMAGES_WINGS:
		return {word + "upleft0.png", word + "upright0.png"};
	default:
		return {word + "bubbleleft.png", word + "bubbleright.png"};
	}
}

// The load counts for what is not shown, too. The speed follows the stage: a heavier ball is a
// faster ball.
void CBall::AddContent(int kind)
{
	const KindRow* row = RowOf(kind);
	if (!row)
		return;
	BallContent* content = MakeContent(kind);
	TakeLoad(kind);
	bool small = row->counter != nullptr;
	if (small && contents.size() >= MOST_SMALL_CONTENTS) {
		delete content->sprite;
		delete content;
	} else {
		contents.push_back(content);
	}

	float oldFactor = LevelGameData()->BallSpeedFactor();
	GrowToLoad();
	ScaleSpeed(1 / oldFactor);
	ScaleSpeed(LevelGameData()->BallSpeedFactor());
}

BallContent* CBall::MakeContent(int kind)
{
	float half           = static_cast<float>(currentSprite->Width()) * 0.5f;
	BallContent* content = new BallContent();
	content->x           = RandomRange(-0.5f, 0.5f) * half;
	content->y           = RandomRange(-0.5f, 0.5f) * half;
	content->vx          = RandomRange(-2, 2);
	content->vy          = RandomRange(-2, 2);

	std::vector<std::string> images = ContentImages(kind);
	CSprite* sprite                 = new CSprite(static_cast<int>(y) - 1);
	sprite->AddFile(images[Rand() % static_cast<int>(images.size())]);
	content->sprite = sprite;
	content->radius = static_cast<float>(std::max(sprite->Width(), sprite->Height()) / 2);
	return content;
}

void CBall::TakeLoad(int kind)
{
	const KindRow* row = RowOf(kind);
	if (row->images == IMAGES_WINGS && stage < 3)
		load = 3;
	else
		load += row->weight;
	if (row->counter)
		this->*row->counter += 1;
}

void CBall::GrowToLoad()
{
	int newStage = STAGES - 1;
	while (s_stageLoads[newStage] > load)
		newStage--;
	if (newStage < stage)
		return;
	if (newStage > stage)
		PlayGrowSound();
	stage = newStage;
	RefreshSprites();
}

void CBall::MoveContents()
{
	float radius = static_cast<float>(currentSprite->Width() / 2);
	if (radius >= THICK_RIM_FROM)
		radius -= 1;
	for (BallContent* content : contents) {
		if (stage >= FIRST_MOVING_STAGE)
			MoveContent(*content, radius - content->radius - RIM);
		bool moves      = stage >= FIRST_MOVING_STAGE;
		int offsetX     = moves ? static_cast<int>(content->x) : 0;
		int offsetY     = moves ? static_cast<int>(content->y) : 0;
		CSprite* sprite = content->sprite;
		sprite->SetPos(static_cast<int>(x) + offsetX - sprite->Width() / 2,
		               static_cast<int>(y) + offsetY - sprite->Height() / 2,
		               static_cast<int>(y) - 1);
	}
}

// It drifts until it meets the inner wall, slides down to the bottom and hops up again.
void CBall::MoveContent(BallContent& content, float wall)
{
	float distance = std::sqrt(content.x * content.x + content.y * content.y);
	if (distance > wall && !content.sliding) {
		content.sliding = true;
		content.angle   = Wrap(THREE_HALVES_PI - std::atan2(content.y, content.x));
	}
	if (content.sliding && content.angle >= BOTTOM_FROM && content.angle <= BOTTOM_TO) {
		content.vx      = RandomRange(-1, 1);
		content.vy      = RandomRange(-2, -1);
		content.sliding = false;
	}
	if (!content.sliding) {
		content.x += content.vx;
		content.y += content.vy;
		return;
	}
	content.angle += content.angle > PI_SHORT ? -SLIDE_STEP : SLIDE_STEP;
	content.x = -std::sin(content.angle) * wall;
	content.y = -std::cos(content.angle) * wall;
}
