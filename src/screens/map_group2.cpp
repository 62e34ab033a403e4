// The close-up of the southern islands.
#include "screens/map_group2.h"

CControllerMapGroup2::CControllerMapGroup2() : CControllerMapGroup(GROUP_B)
{
	Open();
}

CControllerMapGroup2::~CControllerMapGroup2()
{
	Close();
}

void CControllerMapGroup2::BuildScreen(bool firstTime)
{
	if (!HasPictures()) {
		AddBackground("mapcloseupbackgroundgroupBwhole.jpg", 0); // 800x600
		AddArrow(MAP_ARROW_B1, "maparrowB1", 8, 446);            // 70x60
		AddArrow(MAP_ARROW_B2, "maparrowB2", 722, 446);          // 70x60
	}
	BuildDots(firstTime);
}
