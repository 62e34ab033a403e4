// Painting by dirty rectangles: collect, clean, merge, and repaint back to front.
#include "media/render_manager.h"

#include "field/element.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/sprite.h"

#include <algorithm>

static const int TRAIL_TURN_FRAMES     = 30;
static const int FROZEN_DEPTH          = -1000000;
static const int COLLISION_MARKER_SIZE = 3; // pixels

CRenderManager* g_render = nullptr;

CRenderManager::CRenderManager()
{
	collisionMarker = g_display->LoadImage("collision.png");
	dirtyMarker     = g_display->LoadImage("dirty.png");
}

CRenderManager::~CRenderManager()
{
	g_display->ReleaseImage(collisionMarker);
	g_display->ReleaseImage(dirtyMarker);
}

void CRenderManager::Register(CSprite* sprite)
{
	sprites.push_back(sprite);
}

// Searched from the end: what came last goes first when a level or a screen is taken down.
static bool RemoveSprite(std::vector<CSprite*>& list, const CSprite* sprite)
{
	for (size_t i = list.size(); i-- > 0;)
		if (list[i] == sprite) {
			list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
			return true;
		}
	return false;
}

void CRenderManager::Unregister(CSprite* sprite)
{
	if (!RemoveSprite(sprites, sprite))
		RemoveSprite(parkedSprites, sprite);
	RemoveSprite(trailOrder, sprite);
}

static bool IsEmpty(const Rect& rect)
{
	return rect.width <= 0 || rect.height <= 0;
}

static int Area(const Rect& rect)
{
	return rect.width * rect.height;
}

static bool Overlap(const Rect& a, const Rect& b)
{
	return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
	       b.y < a.y + a.height;
}

static Rect BoundingBox(const Rect& a, const Rect& b)
{
	const int left = std::min(a.x, b.x), top = std::min(a.y, b.y);
	return {left, top, std::max(a.x + a.width, b.x + b.width) - left,
	        std::max(a.y + a.height, b.y + b.height) - top};
}

void CRenderManager::AddSpriteDirty(CSprite* sprite, int x, int y, int width, int height)
{
	const Rect old = {x, y, width, height};
	const Rect now = {sprite->x, sprite->y, sprite->width, sprite->height};
	if (now.x == 0 && now.y == 0 && now.width == 0 && now.height == 0) {
		AddLimited(sprite, old);
		return;
	}
	const Rect box = BoundingBox(old, now);
	if (Area(box) < Area(old) + Area(now)) {
		AddLimited(sprite, box);
		return;
	}
	AddLimited(sprite, old);
	AddLimited(sprite, now);
}

// What stands on the field runs behind the side panel and never has it painted again.
void CRenderManager::AddLimited(const CSprite* sprite, Rect rect)
{
	if (sprite->depth < FIRST_PANEL_DEPTH) {
		if (rect.x > FIELD_RIGHT)
			return;
		if (rect.x + rect.width > FIELD_RIGHT)
			rect.width = FIELD_RIGHT - rect.x;
	}
	dirtyRects.push_back(rect);
}

void CRenderManager::AddExtraRect(int x, int y, int width, int height)
{
	extraRects.push_back({x, y, width, height});
}

void CRenderManager::ResetTrail()
{
	trailCountdown = 0;
}

void CRenderManager::Update(bool clearDirty)
{
	TurnTrailOrder();
	if (clearDirty)
		dirtyRects.clear();
	if (g_display->drawingEnabled)
		for (CSprite* sprite : sprites)
			sprite->Step();
	CleanDirtyList();
	dirtyRects.insert(dirtyRects.end(), extraRects.begin(), extraRects.end());
	extraRects.clear();
	CollectVisible();
	for (const Rect& rect : dirtyRects)
		PaintRect(rect);
	DrawDebugAids();
}

// Trail sprites that overlap change places once a second.
void CRenderManager::TurnTrailOrder()
{
	if (--trailCountdown > 0)
		return;
	trailStart++;
	trailCountdown = TRAIL_TURN_FRAMES;
	trailOrder.clear();
	for (CSprite* sprite : sprites)
		if (sprite->trail)
			trailOrder.push_back(sprite);
	if (trailStart >= static_cast<int>(trailOrder.size()))
		trailStart = 0;
	std::rotate(trailOrder.begin(), trailOrder.begin() + trailStart, trailOrder.end());
}

static bool IsOffScreen(const Rect& rect)
{
	return rect.x + rect.width < 0 || rect.x > SCREEN_WIDTH || rect.y + rect.height < 0 ||
	       rect.y > SCREEN_HEIGHT;
}

static Rect ClippedToScreen(const Rect& rect)
{
	const int left = std::max(rect.x, 0), top = std::max(rect.y, 0);
	return {left, top, std::min(rect.x + rect.width, SCREEN_WIDTH) - left,
	        std::min(rect.y + rect.height, SCREEN_HEIGHT) - top};
}

void CRenderManager::CleanDirtyList()
{
	std::erase_if(dirtyRects, IsOffScreen);
	for (Rect& rect : dirtyRects)
		rect = ClippedToScreen(rect);
	std::erase_if(dirtyRects, IsEmpty);
	MergeDirtyList();
	std::erase_if(dirtyRects, IsEmpty);
}

// Two areas become one where that paints no more than both would.
void CRenderManager::MergeDirtyList()
{
	for (Rect& a : dirtyRects) {
		if (IsEmpty(a))
			continue;
		for (Rect& b : dirtyRects) {
			if (&a == &b || IsEmpty(b) || !Overlap(a, b))
				continue;
			const Rect box = BoundingBox(a, b);
			if (Area(box) <= Area(a) + Area(b)) {
				b = box;
				a = Rect();
				break;
			}
		}
	}
}

// Most sprites of a level are hidden, and each rectangle goes through all: a short list of bare
// edges, in the same order, is gone through far quicker than the sprites themselves.
void CRenderManager::CollectVisible()
{
	visible.clear();
	if (dirtyRects.empty())
		return;
	for (CSprite* sprite : sprites)
		if (!sprite->hidden)
			visible.push_back({sprite->x, sprite->y, sprite->x + sprite->width,
			                   sprite->y + sprite->height, sprite});
}

static bool PaintedEarlier(const PaintOrder& a, const PaintOrder& b)
{
	return a.depth != b.depth ? a.depth < b.depth : a.place < b.place;
}

void CRenderManager::PaintRect(const Rect& rect)
{
	currentRect = rect;
	spritesInRect.clear();
	for (const VisibleSprite& shown : visible)
		if (shown.left < rect.x + rect.width && rect.x < shown.right &&
		    shown.top < rect.y + rect.height && rect.y < shown.bottom)
			spritesInRect.push_back(shown.sprite);
	SortIntoGroups();

	for (const PaintOrder& turn : ordinary) {
		if (!turn.sprite) {
			DrawTrailGroup();
			continue;
		}
		if (turn.sprite->foliage && !heldBack.empty())
			DrawHeldBack(turn.sprite);
		turn.sprite->DrawInRect(currentRect);
	}
	DrawHeldBack(nullptr);
	for (const PaintOrder& turn : overlays)
		turn.sprite->DrawInRect(currentRect);
}

// Overlays, sprites held back behind foliage, and all others. The trail group takes one turn, in
// the lowest depth, at the place of its first sprite there.
void CRenderManager::SortIntoGroups()
{
	heldBack.clear();
	ordinary.clear();
	overlays.clear();
	int lowest = 0, trailPlace = -1;
	bool any = false;
	for (int i = 0; i < static_cast<int>(spritesInRect.size()); i++) {
		CSprite* sprite = spritesInRect[static_cast<size_t>(i)];
		if (sprite->overlay) {
			overlays.push_back({sprite->depth, i, sprite});
			continue;
		}
		if (sprite->behindFoliage) {
			heldBack.push_back(sprite);
			continue;
		}
		lowest = any ? std::min(lowest, sprite->depth) : sprite->depth;
		any    = true;
		if (!sprite->trail)
			ordinary.push_back({sprite->depth, i, sprite});
		else if (trailPlace < 0)
			trailPlace = i;
	}
	if (trailPlace >= 0)
		ordinary.push_back({lowest, trailPlace, nullptr});
	std::sort(ordinary.begin(), ordinary.end(), PaintedEarlier);
	std::sort(overlays.begin(), overlays.end(), PaintedEarlier);
}

void CRenderManager::DrawTrailGroup()
{
	for (CSprite* sprite : trailOrder)
		sprite->DrawInRect(currentRect);
}

void CRenderManager::DrawHeldBack(const CSprite* over)
{
	for (;;) {
		size_t next = heldBack.size();
		for (size_t i = 0; i < heldBack.size(); i++) {
			if (over && !heldBack[i]->Overlaps(over))
				continue;
			if (next == heldBack.size() || heldBack[i]->depth < heldBack[next]->depth)
				next = i;
		}
		if (next == heldBack.size())
			return;
		heldBack[next]->DrawInRect(currentRect);
		heldBack.erase(heldBack.begin() + static_cast<std::ptrdiff_t>(next));
	}
}

void CRenderManager::DrawDebugAids()
{
	if (showDirtyRects)
		for (const Rect& rect : dirtyRects)
			DrawMarkerFrame(rect);
	if (!showCollisionPoints)
		return;
	for (const ObstaclePoint* point : CElement::ObstaclePointList) {
		const int x = static_cast<int>(point->x), y = static_cast<int>(point->y);
		g_display->BlitImage(collisionMarker, x, y);
		dirtyRects.push_back({x, y, COLLISION_MARKER_SIZE, COLLISION_MARKER_SIZE});
	}
}

void CRenderManager::DrawMarkerFrame(const Rect& rect)
{
	for (int x = rect.x; x < rect.x + rect.width; x++) {
		g_display->BlitImage(dirtyMarker, x, rect.y);
		g_display->BlitImage(dirtyMarker, x, rect.y + rect.height - 1);
	}
	for (int y = rect.y; y < rect.y + rect.height; y++) {
		g_display->BlitImage(dirtyMarker, rect.x, y);
		g_display->BlitImage(dirtyMarker, rect.x + rect.width - 1, y);
	}
}

void CRenderManager::Freeze()
{
	g_display->EndShake(true);
	TakeCursorOut();
	if (frozen)
		ThawWorld();
	else
		FreezeWorld();
	ResetTrail();
	PutCursorBack();
}

void CRenderManager::FreezeWorld()
{
	const int picture = g_display->SnapshotScreen();
	parkedSprites.swap(sprites);
	sprites.clear();
	frozen       = true;
	frozenSprite = new CSprite(0, 0, FROZEN_DEPTH);
	frozenSprite->AddImage(picture);
}

// The frozen picture first covers what the modal screen left behind.
void CRenderManager::ThawWorld()
{
	frozenSprite->Show();
	dirtyRects.assign(1, {0, 0, SCREEN_WIDTH, SCREEN_HEIGHT});
	Update(false);
	g_display->Present(true);
	delete frozenSprite;
	frozenSprite = nullptr;
	frozen       = false;
	sprites.clear();
	sprites.swap(parkedSprites);
}

// The cursor stands in front of everything in both states.
void CRenderManager::TakeCursorOut()
{
	if (!g_cursor)
		return;
	RemoveSprite(sprites, g_cursor->arrow);
	RemoveSprite(sprites, g_cursor->hourglass);
}

void CRenderManager::PutCursorBack()
{
	if (!g_cursor)
		return;
	sprites.push_back(g_cursor->arrow);
	sprites.push_back(g_cursor->hourglass);
}
