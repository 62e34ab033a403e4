// Draws the world by dirty rectangles, and freezes it behind a modal screen.
#pragma once

#include "media/rect.h"

#include <vector>

class CSprite;

// A sprite's turn within the rectangle being painted: by depth, then by place in the list.
struct PaintOrder {
	int depth, place;
	CSprite* sprite; // null stands for the whole trail group
};

// The edges of a sprite that may be painted this frame.
struct VisibleSprite {
	int left, top, right, bottom; // right and bottom lie just outside
	CSprite* sprite;
};

const int FIELD_RIGHT       = 693;   // the side panel begins right of this column
const int FIRST_PANEL_DEPTH = 15000; // sprites below it never repaint the side panel

// Steps all sprites, cleans and merges the areas that they report, and repaints only those, back
// to front. It owns no sprite but the frozen one. One object lives for the whole run.
class CRenderManager
{
public:
	CRenderManager();
	~CRenderManager();

	void Register(CSprite* sprite);
	void Unregister(CSprite* sprite);
	// The sprite has changed; the rectangle is its previous one.
	void AddSpriteDirty(CSprite* sprite, int x, int y, int width, int height);
	// An area to be repainted in the coming frame though no sprite changed.
	void AddExtraRect(int x, int y, int width, int height);
	void ResetTrail();
	void Update(bool clearDirty); // steps and paints
	void Freeze();                // live to frozen, and back
	bool IsFrozen() const { return frozen; }

	// debug aids, off unless a developer turns them on
	bool showCollisionPoints = false;
	bool showDirtyRects      = false;

	std::vector<CSprite*> sprites; // not owned; in order of creation
	std::vector<Rect> dirtyRects;  // this frame's, read by the display

private:
	void TurnTrailOrder();
	void AddLimited(const CSprite* sprite, Rect rect);
	void CleanDirtyList();
	void MergeDirtyList();
	void CollectVisible();
	void PaintRect(const Rect& rect);
	void SortIntoGroups();
	void DrawTrailGroup();
	void DrawHeldBack(const CSprite* over); // null: all that are left
	void DrawMarkerFrame(const Rect& rect);
	void DrawDebugAids();
	void FreezeWorld();
	void ThawWorld();
	void TakeCursorOut();
	void PutCursorBack();

	Rect currentRect;
	std::vector<CSprite*> parkedSprites;
	std::vector<CSprite*> spritesInRect;
	std::vector<CSprite*> heldBack;
	std::vector<CSprite*> trailOrder;
	std::vector<Rect> extraRects;
	std::vector<VisibleSprite> visible;
	std::vector<PaintOrder> ordinary, overlays; // scratch, kept so that no frame allocates
	int collisionMarker = -1, dirtyMarker = -1;
	int trailCountdown    = 0; // frames to the next turn of the trail order
	int trailStart        = 0;
	bool frozen           = false;
	CSprite* frozenSprite = nullptr; // owned
};

extern CRenderManager* g_render;
