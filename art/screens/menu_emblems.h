// The signs on the main menu's buttons.
#pragma once

#include "art/core/canvas.h"

using Emblem = void (*)(Canvas&);

// Each is drawn about 30 pixels high around (MENU_EMBLEM_X, MENU_EMBLEM_Y).
const float MENU_EMBLEM_X = 66, MENU_EMBLEM_Y = 26;

void DrawCupEmblem(Canvas& canvas);
void DrawGearEmblem(Canvas& canvas);
void DrawGiftEmblem(Canvas& canvas);
void DrawDoorEmblem(Canvas& canvas);
void DrawPawEmblem(Canvas& canvas);
void DrawMedalEmblem(Canvas& canvas);
void DrawPodiumEmblem(Canvas& canvas);
void DrawBackEmblem(Canvas& canvas);
void DrawQuestionEmblem(Canvas& canvas);
void DrawSlidersEmblem(Canvas& canvas);
void DrawScrollEmblem(Canvas& canvas);
