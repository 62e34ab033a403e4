// Brings the music into the forge: a group for each piece.
#include "art/families.h"
#include "art/music/pieces.h"
#include "art/sounds/vorbis_file.h"

#include <cstdio>
#include <cstdlib>

static const float QUALITY = .35f;

// clang-format off
const Piece PIECES[11] = {
	{ "title",  ComposeTitle },  { "map",    ComposeMap },    { "bonus",  ComposeBonus },
	{ "alien",  ComposeAlien },  { "quiz",   ComposeQuiz },   { "story",  ComposeStory },
	{ "stage1", ComposeStage1 }, { "stage2", ComposeStage2 }, { "stage3", ComposeStage3 },
	{ "stage4", ComposeStage4 }, { "stage5", ComposeStage5 },
};
// clang-format on

static void Make(const Piece& piece, Sink& sink)
{
	Score score(piece.name);
	piece.compose(score);
	Sound sound;
	std::string fault;
	if (!Record(score, sound, fault)) {
		std::fprintf(stderr, "forge: %s\n", fault.c_str());
		std::fflush(stderr);
		std::_Exit(1); // other threads are still drawing
	}
	sink.AddBytes(score.name + ".mdt", EncodeVorbis(sound, QUALITY));
}

void AddMusic(Catalogue& catalogue)
{
	for (const Piece& piece : PIECES) {
		std::string source = std::string("art/music/") + piece.name + ".cpp";
		catalogue.Add(std::string("music ") + piece.name, source.c_str(),
		              [&piece](Sink& sink) { Make(piece, sink); });
	}
}
