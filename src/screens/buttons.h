// Buttons named by their family of pictures.
#pragma once

#include <string>

class CController;
class CGuiButton;

// A button of the pictures family + "base.png", "shadow.png" and "rollover.png", above everything
// that is drawn on a card; its shadow falls to the lower right. Whoever calls deletes it. With
// isDefault Return presses it while nothing has focus.
CGuiButton* NewButton(CController* owner, int id, int x, int y, const std::string& family,
                      bool isDefault = false);
