// The common base of all that stands on the field, and the static lists that are the field.
#include "field/element.h"

#include "animals/animal.h"
#include "field/obstacle_grid.h"

#include <algorithm>
#include <cmath>

static const float LINE_SPACING = 11; // pixels, just inside CElement::JOIN_DISTANCE

std::vector<CElement*> CElement::ElementList;
std::vector<ObstaclePoint*> CElement::ObstaclePointList;
std::vector<TouchCircle*> CElement::TouchCircleList;
int CElement::FrameCounter = 0;

static unsigned int s_nextOrder = 1;
static std::vector<ObstaclePoint*> s_removedPoints; // the field's own, until ClearField

CElement::CElement()
{
	ElementList.push_back(this);
}

CElement::~CElement()
{
	RemoveObstaclePoints(this);
	RemoveTouchCircles(this);
}

bool CElement::OnBallHit()
{
	return false;
}

void CElement::OnStun(int) {}

void CElement::Break(bool, int, int) {}

int CElement::OnBump()
{
	return -1;
}

int CElement::FramesSinceLastHit()
{
	int frames   = FrameCounter - lastHitFrame;
	lastHitFrame = FrameCounter;
	return frames;
}

void CElement::AddDependant(CElement* element)
{
	dependants.push_back(element);
}

ObstaclePoint* AddObstaclePoint(CElement* owner, float x, float y)
{
	ObstaclePoint* point = new ObstaclePoint{x, y, owner};
	point->fieldOwned    = true;
	AddObstacleRecord(point);
	return point;
}

void AddObstacleRecord(ObstaclePoint* point)
{
	CElement* owner    = point->owner;
	point->order       = s_nextOrder++;
	point->nextOfOwner = nullptr;
	if (owner->lastPoint)
		owner->lastPoint->nextOfOwner = point;
	else
		owner->firstPoint = point;
	owner->lastPoint = point;

	CElement::ObstaclePointList.push_back(point);
	g_obstacleGrid.Insert(point);
}

void AddObstacleLine(CElement* owner, float x1, float y1, float x2, float y2)
{
	float dx = x2 - x1, dy = y2 - y1;
	int count = static_cast<int>(std::ceil(std::sqrt(dx * dx + dy * dy) / LINE_SPACING)) + 1;
	for (int i = 1; i <= count; i++) {
		float step = static_cast<float>(i), steps = static_cast<float>(count);
		AddObstaclePoint(owner, x1 + step * dx / steps, y1 + step * dy / steps);
	}
}

void MoveObstacle(ObstaclePoint* point, float x, float y)
{
	g_obstacleGrid.Move(point, x, y);
}

typedef std::vector<ObstaclePoint*>::iterator PointPlace;

static PointPlace PlaceInList(PointPlace from, const ObstaclePoint* point)
{
	return std::lower_bound(
	    from, CElement::ObstaclePointList.end(), point,
	    [](const ObstaclePoint* a, const ObstaclePoint* b) { return a->order < b->order; });
}

// The owner's points come in list order, so one pass closes all the gaps, from the first gap on.
void RemoveObstaclePoints(CElement* owner)
{
	if (!owner->firstPoint)
		return;
	std::vector<ObstaclePoint*>& list = CElement::ObstaclePointList;
	PointPlace write                  = PlaceInList(list.begin(), owner->firstPoint);
	PointPlace read                   = write;
	for (ObstaclePoint* point = owner->firstPoint; point; point = point->nextOfOwner) {
		PointPlace gap = PlaceInList(read, point);
		write          = std::copy(read, gap, write);
		read           = gap + 1;
		g_obstacleGrid.Remove(point);
		if (point->fieldOwned)
			s_removedPoints.push_back(point);
	}
	list.erase(std::copy(read, list.end(), write), list.end());
	owner->firstPoint = owner->lastPoint = nullptr;
}

bool AnyObstacleNear(int x, int y, float radius)
{
	return g_obstacleGrid.AnyNear(static_cast<float>(x), static_cast<float>(y), radius);
}

void AddTouchCircle(CElement* owner, float x, float y, float radius)
{
	CElement::TouchCircleList.push_back(new TouchCircle{x, y, radius, owner});
}

void RemoveTouchCircles(CElement* owner)
{
	std::vector<TouchCircle*>& list = CElement::TouchCircleList;
	size_t kept                     = 0;
	for (TouchCircle* circle : list) {
		if (circle->owner == owner)
			delete circle;
		else
			list[kept++] = circle;
	}
	list.resize(kept);
}

void RemoveFromElementList(CElement* element)
{
	std::vector<CElement*>& list           = CElement::ElementList;
	std::vector<CElement*>::iterator found = std::find(list.begin(), list.end(), element);
	if (found != list.end())
		list.erase(found);
}

// What is made during the tick joins the list at once but first runs in the next frame: the pass
// goes over a copy.
void FieldTick()
{
	static std::vector<CElement*> s_tickList; // kept, so that no frame allocates
	CElement::FrameCounter++;
	s_tickList = CElement::ElementList;
	for (CElement* element : s_tickList)
		element->Update();
	CElementAnimal::RescueHintTick();
}

void ClearField()
{
	for (CElement* element : CElement::ElementList)
		delete element;
	CElement::ElementList.clear();

	// What is left belongs to elements that somebody took out of ElementList.
	while (!CElement::ObstaclePointList.empty())
		RemoveObstaclePoints(CElement::ObstaclePointList.front()->owner);
	for (ObstaclePoint* point : s_removedPoints)
		delete point;
	s_removedPoints.clear();
	s_nextOrder = 1;
}
