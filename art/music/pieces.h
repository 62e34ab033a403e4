// The eleven pieces of music, one file each.
#pragma once

#include "art/music/band.h"
#include "art/music/score.h"
#include "art/music/theme.h"

void ComposeTitle(Score& score);
void ComposeMap(Score& score);
void ComposeBonus(Score& score);
void ComposeAlien(Score& score);
void ComposeQuiz(Score& score);
void ComposeStory(Score& score);
void ComposeStage1(Score& score);
void ComposeStage2(Score& score);
void ComposeStage3(Score& score);
void ComposeStage4(Score& score);
void ComposeStage5(Score& score);

struct Piece {
	const char* name; // of its file, without the extension
	void (*compose)(Score&);
};
extern const Piece PIECES[11];
