// A fence post: looks as worn as the least worn of its sections.
#include "field/fence_post.h"

#include "field/fence.h"
#include "media/sprite.h"

#include <algorithm>

static const int FOOT_ABOVE_BOTTOM = 6; // pixels from the picture's bottom to the depth line

CFencePost::CFencePost(int newX, int newY)
{
	x     = newX;
	y     = newY;
	base  = new CSprite(0, 1);
	light = new CSprite(0, 1);
	heavy = new CSprite(0, 1);
	base->AddFile("fencepost0.png");
	light->AddSequence("fencepost", 1, 2, ".png");
	heavy->AddSequence("fencepost", 3, 4, ".png");
	for (CSprite* sprite : {base, light, heavy}) {
		sprite->SetStopAtEnd();
		sprite->SetPos(newX, newY, newY + base->Height() - FOOT_ABOVE_BOTTOM);
	}
	light->Hide();
	heavy->Hide();
	currentSprite = base;
}

CFencePost::~CFencePost()
{
	delete base;
	delete light;
	delete heavy;
}

void CFencePost::Update()
{
	int least = state;
	for (size_t i = 0; i < sections.size(); i++)
		least = i == 0 ? sections[i]->hits : std::min(least, sections[i]->hits);
	if (least <= state)
		return;
	state = least;
	currentSprite->Hide();
	currentSprite = state == 1 ? light : state == 2 ? heavy : nullptr;
	if (!currentSprite)
		currentSprite = base; // all its sections have gone, and the post with them
	else
		currentSprite->Show();
}

bool CFencePost::OnBallHit()
{
	return false;
}
