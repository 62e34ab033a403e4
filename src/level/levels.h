// The routines of all levels, in files of ten.
#pragma once

class CControllerGame;

void BuildLevel001(CControllerGame* game);
