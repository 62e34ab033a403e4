// The close-up of the eastern islands.
#include "screens/map_group3.h"

CControllerMapGroup3::CControllerMapGroup3() : CControllerMapGroup(GROUP_C)
{
	Open();
}

CControllerMapGroup3::~CControllerMapGroup3()
{
	Close();
}

void CControllerMapGroup3::BuildScreen(bool firstTime)
{
	if (!HasPictures()) {
		AddBackground("mapcloseupbackgroundgroupACtop.jpg", 0);     // 800x194
		AddBackground("mapcloseupbackgroundgroupCbottom.jpg", 194); // 800x406
		AddArrow(MAP_ARROW_C, "maparrowC", 8, 446);                 // 70x60
	}
	BuildDots(firstTime);
}
