// Buttons named by their family of pictures.
#include "screens/buttons.h"

#include "media/gui_button.h"

static const int SHADOW_X = 3; // pixels
static const int SHADOW_Y = 6;

CGuiButton* NewButton(CController* owner, int id, int x, int y, const std::string& family,
                      bool isDefault)
{
	return new CGuiButton(x, y, id, owner, family + "base.png", family + "shadow.png",
	                      family + "rollover.png", "", isDefault, true, SHADOW_X, SHADOW_Y);
}
