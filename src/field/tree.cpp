// Trees: a solid foot, a crown that shakes, fruit that falls.
#include "field/tree.h"

#include "animals/tree_climber.h"
#include "field/element_point.h"
#include "field/powerup.h"
#include "field/tree_shapes.h"
#include "frame/random.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <cmath>

static const int FOREGROUND_Y  = 600; // from here down a tree is only a picture in front
static const int HIT_PAUSE     = 3;   // frames
static const int MOST_POWERUPS = 5;
static const int MOST_FRUIT    = 100;
static const float HIT_RADIUS = 1.2f, HIT_SPEED = 0.9f; // pixels, radians a frame
static const float WIND_SPEED = 0.15f, BLAST_SPEED = 0.4f;
static const float PINE_RADIUS = 0.5f, CROWN_RADIUS = 1.5f;
static const float TURN        = 6.28318f;
static const float HALF_TURN   = 3.14159f;
static const float TURN_MARGIN = 0.01f;
static const int FRUIT_LIFT    = 30;                 // pixels above its place, at least
static const int CLIMB_LEFT = 29, CLIMB_RIGHT = 664; // limits of a crown that can be climbed
static const int CLIMB_TOP = 29, CLIMB_BOTTOM = 471;
static const int SEAT      = 9; // pixels from the crown sprite's top to a climber's feet
static const int PINE_SEAT = 15;

std::vector<CTree*> CTree::TreeList;

CTree::CTree(int newX, int newY, int newKind, int newSize, int newVariant)
    : kind(newKind), size(newSize), variant(newVariant), baseY(newY)
{
	isTree = true;
	if (variant < 0)
		variant = Rand() % TrunkVariants(kind, size);
	x = newX;
	y = newY;
	GrowTrunk();
	if (kind == TREE_PALM)
		GrowPalm();
	else if (kind == TREE_PINE)
		GrowPine();
	else
		GrowBroadleaf();
	noDrops = baseY >= FOREGROUND_Y || x < 0 || x + trunk->Width() > FIELD_RIGHT;
	TreeList.push_back(this);
	Update();
}

CTree::~CTree()
{
	delete trunk;
	for (int i = 0; i < foliageCount; i++)
		delete foliage[i].sprite;
	TreeList.clear();
}

void CTree::GrowTrunk()
{
	const TrunkShape& shape = TrunkShapeOf(kind, size, variant);
	trunk                   = new CSprite(baseY);
	trunk->AddFile(shape.picture);
	currentSprite = collisionSprite = trunk;
	x -= shape.shiftX;
	y -= shape.shiftY;
	crownIndex = shape.crownIndex;
	if (baseY < FOREGROUND_Y)
		LayOutline(this, x, y, shape.outline, TREE_OUTLINE_POINTS);
}

CSprite* CTree::AddFoliage(const std::string& picture, int depth)
{
	Foliage& leaf = foliage[foliageCount++];
	leaf          = Foliage();
	leaf.sprite   = new CSprite(depth, SPRITE_FOLIAGE);
	leaf.sprite->AddFile(picture);
	return leaf.sprite;
}

void CTree::GrowBroadleaf()
{
	const TrunkShape& shape   = TrunkShapeOf(kind, size, variant);
	const ClumpPlaces& clumps = ClumpPlacesOf(size, variant);
	const char* word = kind == TREE_GREEN ? "green" : kind == TREE_ORANGE ? "orange" : "red";
	for (int i = 0; i < clumps.count; i++) {
		std::string letter(1, static_cast<char>('A' + Rand() % 3));
		CSprite* sprite = AddFoliage(std::string("leaves") + word + letter + ".png",
		                             baseY + (i == crownIndex ? 3 : 1));
		// whichever sprite is the crown takes the first place
		int place              = i == crownIndex ? 0 : i == 0 ? crownIndex : i;
		const OutlinePoint& at = clumps.places[place];
		foliage[i].x           = shape.crownX + at.x - sprite->Width() / 2;
		foliage[i].y           = shape.crownY + at.y - sprite->Height() / 2;
	}
}

// Each tier hangs over the one below it.
void CTree::GrowPine()
{
	const PineShape& pine = PineShapeOf(size);
	int middle            = TrunkShapeOf(kind, size, variant).crownX;
	for (int i = 0; i < PINE_TIERS; i++) {
		CSprite* sprite = AddFoliage(std::string(pine.stem) + (variant == 1 ? "B" : "") +
		                                 std::to_string(i) + ".png",
		                             baseY + PINE_TIERS - i + (i == crownIndex ? 3 : 1));
		foliage[i].x    = middle - sprite->Width() / 2;
		foliage[i].y    = pine.tierY[i];
	}
}

void CTree::GrowPalm()
{
	const TrunkShape& shape = TrunkShapeOf(kind, size, variant);
	const PalmShape& palm   = PalmShapeOf(variant);
	for (int i = 0; i < palm.coconuts; i++) {
		std::string letter(1, static_cast<char>('A' + Rand() % 3));
		CSprite* sprite    = AddFoliage("coconut" + letter + ".png", baseY + 2);
		OutlinePoint place = CoconutPlace(i);
		foliage[i].x       = shape.crownX + place.x - sprite->Width() / 2;
		foliage[i].y       = shape.crownY + place.y - sprite->Height() / 2;
	}
	for (const char* letter = palm.fronds; *letter; letter++) {
		AddFoliage(std::string(palm.stem) + *letter + ".png", baseY + 1);
		OutlinePoint root = FrondRoot(palm.stem, *letter);
		Foliage& frond    = foliage[foliageCount - 1];
		frond.x           = shape.crownX - root.x;
		frond.y           = shape.crownY - root.y;
	}
}

void CTree::Update()
{
	int wholeX = static_cast<int>(x), wholeY = static_cast<int>(y);
	trunk->SetPos(wholeX, wholeY, baseY);
	for (int i = 0; i < foliageCount; i++)
		foliage[i].sprite->SetPos(wholeX + static_cast<int>(foliage[i].x),
		                          wholeY + static_cast<int>(foliage[i].y));
}

bool CTree::OnBallHit()
{
	if (FramesSinceLastHit() < HIT_PAUSE)
		return false;
	CGameData* data = LevelGameData();
	data->NoteTree();
	if (!noDrops && powerupsGiven < MOST_POWERUPS && Rand() % data->SpawnInterval() == 0)
		DropPowerup();
	if (static_cast<int>(y) < FOREGROUND_Y && fruitThrown < MOST_FRUIT)
		ThrowFruit();
	Shake(HIT_RADIUS, HIT_SPEED);
	if (CElementTreeClimber* shaken = dynamic_cast<CElementTreeClimber*>(climber))
		shaken->ShakeOut();
	return false;
}

void CTree::DropPowerup()
{
	int width = trunk->Width(), height = trunk->Height();
	int dropX = trunk->X() + width / 2, dropY = trunk->Y() + height / 2, dropZ = height * 2;
	if (kind != TREE_PINE) {
		dropX += RandomWhole(-width / 2, width / 2);
		dropY = trunk->Y() + height * 4 / 5;
		dropZ = height;
	}
	new CPowerup(dropX, dropY, POWERUP_RANDOM, false, dropZ);
	powerupsGiven++;
}

void CTree::ThrowFruit()
{
	static const int MOST_BY_SIZE[] = {3, 3, 5, 4};
	CGameData* data                 = LevelGameData();
	int count                       = 1;
	if (kind == TREE_PALM)
		count = data->RandomBySkill(1, 2);
	else if (size >= 0 && size <= 3)
		count = data->RandomBySkill(1, MOST_BY_SIZE[size]);
	fruitThrown += count;
	for (int i = 0; i < count; i++) {
		if (kind == TREE_PALM)
			ThrowCoconut();
		else
			ThrowOne();
	}
}

void CTree::ThrowOne()
{
	const FruitZone& zone = FruitZoneOf(kind, size, variant);
	float down            = RandomRange(zone.top, zone.bottom);
	float left = zone.left, right = zone.right;
	if (down > zone.bandTop && down < zone.bandBottom) {
		if (Coin())
			left = zone.rightSideStart;
		else
			right = zone.leftSideEnd;
	}
	float across  = RandomRange(left, right);
	float above   = RandomRange(down + FRUIT_LIFT, down + zone.mostAbove);
	float speedX  = RandomRange(-0.5f, 0.5f);
	int fruitKind = kind == TREE_PINE    ? POINT_PINECONE
	                : kind == TREE_GREEN ? POINT_APPLE
	                                     : POINT_ACORN;
	new CElementPoint(x + trunk->Width() / 2 + across, y + trunk->Height() / 2 + down, above,
	                  fruitKind, speedX, 1, 0);
}

void CTree::ThrowCoconut()
{
	int width = trunk->Width(), height = trunk->Height();
	float lift                  = Coin() ? RandomRange(-30, -18) : RandomRange(-10, 10);
	const PalmFruitRange& range = PalmFruitRangeOf(variant);
	float across                = RandomRange(range.from, range.to) - width / 2;
	float down                  = height / 3 + lift;
	float speedX                = RandomRange(-1, 1);
	new CElementPoint(x + width / 2 + across, y + height / 2 + down, height + lift - 15,
	                  POINT_COCONUT, speedX, 1, 0);
}

void CTree::Shake(float radius, float speed)
{
	if (!LevelGameData()->EffectsOn())
		return;
	for (int i = 0; i < foliageCount; i++) {
		Foliage& leaf = foliage[i];
		if (shaking) {
			leaf.x = leaf.swing.homeX;
			leaf.y = leaf.swing.homeY;
		}
		Swivel(leaf, radius, speed);
	}
	shaking = true;
}

static void MoveToAngle(CTree::Foliage& leaf)
{
	const CTree::Swing& swing = leaf.swing;
	leaf.x                    = swing.centreX + std::sin(swing.angle) * swing.radius;
	leaf.y                    = swing.centreY - std::cos(swing.angle) * swing.radius;
}

// The circle passes through the home place. The margin keeps the start from counting as the end.
void CTree::Swivel(Foliage& leaf, float radius, float speed)
{
	Swing& swing = leaf.swing;
	swing.done   = false;
	swing.radius = RandomRange(radius / 2, radius);
	swing.step   = RandomRange(speed * 2 / 3, speed * 4 / 3);
	if (!Coin())
		swing.step = -swing.step;
	swing.homeX      = leaf.x;
	swing.homeY      = leaf.y;
	swing.startAngle = RandomRange(0, TURN);
	float opposite   = swing.startAngle + HALF_TURN;
	swing.centreX    = swing.homeX + std::sin(opposite) * swing.radius;
	swing.centreY    = swing.homeY - std::cos(opposite) * swing.radius;
	swing.angle = swing.startAngle + swing.step + (swing.step > 0 ? TURN_MARGIN : -TURN_MARGIN);
	MoveToAngle(leaf);
}

static float IntoTurn(float angle)
{
	while (angle < 0)
		angle += TURN;
	while (angle > TURN)
		angle -= TURN;
	return angle;
}

void CTree::SwayFoliage()
{
	bool allDone = true;
	for (int i = 0; i < foliageCount; i++) {
		Foliage& leaf = foliage[i];
		Swing& swing  = leaf.swing;
		if (swing.done)
			continue;
		float way = IntoTurn(std::fabs(swing.angle - swing.startAngle));
		if (way <= std::fabs(swing.step)) {
			swing.done = true;
			leaf.x     = swing.homeX;
			leaf.y     = swing.homeY;
			continue;
		}
		allDone = false;
		MoveToAngle(leaf);
		swing.angle = IntoTurn(swing.angle + swing.step);
	}
	shaking = !allDone;
}

void CTree::SwayStep()
{
	for (CTree* tree : TreeList)
		if (tree->shaking)
			tree->SwayFoliage();
}

void CTree::WindStep()
{
	for (CTree* tree : TreeList)
		if (!tree->shaking)
			tree->Shake(tree->kind == TREE_PINE ? PINE_RADIUS : CROWN_RADIUS, WIND_SPEED);
}

void CTree::BlastAll()
{
	for (CTree* tree : TreeList) {
		tree->OnBallHit();
		tree->Shake(tree->kind == TREE_PINE ? PINE_RADIUS : CROWN_RADIUS, BLAST_SPEED);
	}
}

void CTree::SetBonusLevel()
{
	for (CTree* tree : TreeList)
		tree->noDrops = true;
}

void CTree::SetClimber(CElementAnimal* animal)
{
	climber = animal;
}

int CTree::CrownX() const
{
	const Foliage& crown = foliage[crownIndex];
	return static_cast<int>(x) + static_cast<int>(crown.x) + crown.sprite->Width() / 2;
}

int CTree::TrunkTopY() const
{
	return trunk->Y();
}

int CTree::TrunkBaseY() const
{
	return static_cast<int>(y) + trunk->Height();
}

int CTree::CrownZ() const
{
	int crownTop = static_cast<int>(foliage[crownIndex].y) + static_cast<int>(y);
	return TrunkBaseY() - (crownTop + (kind == TREE_PINE ? PINE_SEAT : SEAT));
}

int CTree::CrownDepth() const
{
	return foliage[crownIndex].sprite->Depth() - 1;
}

CTree* CTree::FreeTreeAt(float atX, float atY, float toleranceX, float toleranceY)
{
	for (CTree* tree : TreeList) {
		int crownX = tree->CrownX(), seatY = tree->TrunkBaseY() - tree->CrownZ();
		int middle = tree->trunk->X() + tree->trunk->Width() / 2;
		if (!tree->climber && tree->kind != TREE_PALM && crownX > CLIMB_LEFT &&
		    crownX < CLIMB_RIGHT && seatY > CLIMB_TOP && seatY < CLIMB_BOTTOM &&
		    std::fabs(middle - atX) <= toleranceX &&
		    std::fabs(tree->TrunkBaseY() - atY) <= toleranceY)
			return tree;
	}
	return nullptr;
}
