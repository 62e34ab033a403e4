// The routines of all levels, each in a file of its own in the folder campaign.
#pragma once

class CControllerGame;

void BuildLevel001(CControllerGame* game);
void BuildLevel002(CControllerGame* game);
void BuildLevel003(CControllerGame* game);
void BuildLevel004(CControllerGame* game);
void BuildLevel005(CControllerGame* game);
void BuildLevel006(CControllerGame* game);
void BuildLevel007(CControllerGame* game);
void BuildLevel008(CControllerGame* game);
void BuildLevel009(CControllerGame* game);
void BuildLevel010(CControllerGame* game);
void BuildLevel011(CControllerGame* game);
void BuildLevel012(CControllerGame* game);
void BuildLevel015(CControllerGame* game);
void BuildLevel021(CControllerGame* game);
void BuildLevel023(CControllerGame* game);
void BuildLevel026(CControllerGame* game);
void BuildLevel043(CControllerGame* game);
void BuildLevel055(CControllerGame* game);
void BuildLevel067(CControllerGame* game);
void BuildLevel073(CControllerGame* game);
