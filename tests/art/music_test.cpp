// Tests of the music: the scores are read like a proof-reader does, and three are listened to.
#include "art/families.h"
#include "art/music/mix.h"
#include "art/music/pieces.h"
#include "art/music/proof.h"
#include "art/sounds/vorbis_file.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

static const double HELD = .3; // seconds from which a semitone hurts

static Score Composed(const Piece& piece)
{
	Score score(piece.name);
	piece.compose(score);
	return score;
}

static const Piece& PieceNamed(const std::string& name)
{
	for (const Piece& piece : PIECES)
		if (name == piece.name)
			return piece;
	ADD_FAILURE() << name;
	return PIECES[0];
}

static std::string Joined(const std::vector<std::string>& lines)
{
	std::string all;
	for (const std::string& line : lines)
		all += line + "\n";
	return all;
}

TEST(Notation, ReadsLengthsTiesTripletsAndGraces)
{
	Phrase line = ReadPhrase("c4q. f#4e (d5) bb3h~ | bb3q r5 ", 4);
	EXPECT_EQ(line.fault, "bar 2: can't read r5");
	line = ReadPhrase("c4q. f#4e (d5) bb3h~ | bb3q c5et> d5et e5et' rh | R2", 4);
	ASSERT_EQ(line.fault, "");
	EXPECT_EQ(line.bars, 4);
	ASSERT_EQ(line.notes.size(), 7u);
	EXPECT_EQ(line.notes[0].key, 60);
	EXPECT_EQ(line.notes[1].key, 66);
	EXPECT_DOUBLE_EQ(line.notes[1].at, 1.5);
	EXPECT_TRUE(line.notes[2].grace);
	EXPECT_EQ(line.notes[3].key, 58);
	EXPECT_DOUBLE_EQ(line.notes[3].length, 3) << "a tie joins over the bar";
	EXPECT_TRUE(line.notes[4].accent);
	EXPECT_NEAR(line.notes[5].at, 5 + 1.0 / 3, 1e-9);
	EXPECT_TRUE(line.notes[6].staccato);
}

TEST(Notation, SlipsAreNamedWithTheirBar)
{
	EXPECT_EQ(ReadPhrase("c4w | c4h e4q | c4w", 4).fault, "bar 2 holds 3 quarters, not 4");
	EXPECT_EQ(ReadPhrase("c4h. | c4w", 3).fault, "bar 2 holds 4 quarters, not 3");
	EXPECT_EQ(ReadPhrase("c4w c4w", 4).fault, "bar 1 holds 8 quarters, not 4")
	    << "a missing bar line";
	EXPECT_EQ(ReadPhrase("c4w | h4w", 4).fault, "bar 2: can't read h4w");
	EXPECT_EQ(ReadPhrase("c4h~ d4h", 4).fault, "bar 1: can't read d4h") << "a tie to another note";
	EXPECT_EQ(ReadHarmony("C | Xm | G", 4).fault, "bar 2: no chord Xm");
	EXPECT_EQ(ReadHarmony("C | | G", 4).fault, "bar 2 has no chord");

	Score score("short");
	Part flute = score.Add(FLUTE, 100, 64);
	score.Open("tune", "C | F");
	flute.Lead("c5w | d5h", 80);
	EXPECT_EQ(score.fault, "tune, flute: bar 2 holds 2 quarters, not 4");
	Sound sound;
	std::string fault;
	EXPECT_FALSE(Record(score, sound, fault));
	EXPECT_EQ(fault, "short: tune, flute: bar 2 holds 2 quarters, not 4");
}

TEST(Notation, ChordsHaveTheirTonesAndBass)
{
	Harmony harmony = ReadHarmony("Dm7 G/B | F#dim", 4);
	ASSERT_EQ(harmony.chords.size(), 3u);
	EXPECT_EQ(harmony.chords[0].tones, std::vector<int>({2, 5, 9, 0}));
	EXPECT_EQ(harmony.chords[1].bass, 11);
	EXPECT_DOUBLE_EQ(harmony.chords[1].at, 2);
	EXPECT_EQ(harmony.chords[2].tones, std::vector<int>({6, 9, 0}));
}

TEST(Music, EveryBarOfEveryPieceAddsUp)
{
	for (const Piece& piece : PIECES)
		EXPECT_EQ(Composed(piece).fault, "") << piece.name;
}

namespace
{
struct Plan {
	const char* name;
	double tempo, seconds; // without the tail
	int tonic;             // pitch class that the first tune stands on
	bool minor, loops;
};
} // namespace

// clang-format off
static const Plan PLANS[] = {
	// name      tempo  length tonic minor  loops
	{ "title",    118,   97.6,   0,  false, true },
	{ "map",       92,   93.9,   5,  false, true },
	{ "bonus",    144,   80.0,   7,  false, true },
	{ "alien",    100,   96.0,   2,  true,  true },
	{ "quiz",     112,   68.6,   0,  false, true },
	{ "story",    100,   93.6,   0,  false, true },
	{ "stage1",   126,  138.0,   7,  false, false },
	{ "stage2",   104,  166.7,   5,  false, false },
	{ "stage3",   126,  149.3,   9,  true,  false },
	{ "stage4",   112,  155.1,   2,  true,  false },
	{ "stage5",   120,  152.6,   0,  false, false },
};
// clang-format on

// Share of notes that lie in the white keys of the piece.
static double ShareInScale(const Score& score)
{
	int inside = 0, all = 0;
	for (const Played& note : score.played) {
		if (score.players[note.player].instrument.drums)
			continue;
		int written = (note.key - score.transpose + 120) % 12;
		all++;
		inside += std::string("101011010101")[written] == '1';
	}
	return (double)inside / all;
}

TEST(Music, KeysTemposAndLengthsFollowThePlan)
{
	for (const Plan& plan : PLANS) {
		SCOPED_TRACE(plan.name);
		Score score = Composed(PieceNamed(plan.name));
		EXPECT_EQ(score.tempo, plan.tempo);
		EXPECT_EQ(score.loops, plan.loops);
		EXPECT_NEAR(score.Length(), plan.seconds, .5);
		ASSERT_GT(score.sections.size(), 3u);
		const Chord& home = score.sections[1].chords[0];
		EXPECT_EQ(home.root, plan.tonic);
		EXPECT_EQ((home.tones[1] - home.root + 12) % 12, plan.minor ? 3 : 4);
		EXPECT_GT(ShareInScale(score), .93);
		if (!plan.loops) {
			const Chord& last = score.sections.back().chords.back();
			EXPECT_EQ(last.root, plan.name == std::string("stage3") ? 0 : plan.tonic);
		}
	}
}

TEST(Music, TheTuneStandsOnChordTonesWhereTheBeatIsStrong)
{
	for (const Piece& piece : PIECES) {
		Score score = Composed(piece);
		EXPECT_EQ(Joined(OffChord(score)), "");
		size_t withTune = 0;
		for (const Section& section : score.sections)
			withTune += section.lead.size() > 5;
		EXPECT_GE(withTune, 3u) << piece.name;
	}
}

TEST(Music, NoSemitonesAreHeldAndNobodyLeavesHisRange)
{
	for (const Piece& piece : PIECES) {
		Score score = Composed(piece);
		EXPECT_EQ(Joined(Clashes(score, HELD)), "");
		EXPECT_EQ(Joined(OutOfRange(score)), "");
	}
}

TEST(Music, TheProofReaderFindsPlantedSlips)
{
	Score score("planted");
	Part flute = score.Add(FLUTE, 100, 64), horn = score.Add(HORN, 100, 64);
	score.Open("tune", "C | G");
	flute.Lead("c5h f5h | d5w", 80);
	horn.Line("e4h e4h | g2w", 80, {.octave = OCTAVE_DOWN});
	horn.Line("R | c#5w", 80);
	ASSERT_EQ(score.fault, "");
	std::vector<std::string> off = OffChord(score), range = OutOfRange(score);
	ASSERT_EQ(off.size(), 1u);
	EXPECT_EQ(off[0], "planted, tune, bar 1, quarter 3.00: f5 over C");
	std::vector<std::string> clash = Clashes(score, HELD);
	ASSERT_EQ(clash.size(), 1u) << Joined(clash);
	EXPECT_NE(clash[0].find("c#5"), std::string::npos);
	ASSERT_EQ(range.size(), 1u) << Joined(range);
	EXPECT_NE(range[0].find("horn g1"), std::string::npos) << range[0];
}

// Two sections after each other that sound the same would tire the ear in a loop.
TEST(Music, NoSectionRepeatsTheOneBefore)
{
	for (const Piece& piece : PIECES) {
		Score score = Composed(piece);
		auto band   = [&](const Section& section) {
            std::vector<int> counts(score.players.size(), 0);
            for (const Played& note : score.played)
                if (note.from >= section.at - .2 &&
                    note.from < section.at + section.bars * score.barLength - .2)
                    counts[note.player]++;
            return counts;
		};
		for (size_t i = 1; i < score.sections.size(); i++)
			EXPECT_NE(band(score.sections[i]), band(score.sections[i - 1]))
			    << piece.name << ", " << score.sections[i].name;
	}
}

TEST(Music, EachPieceIsAGroupWithItsOwnSource)
{
	Catalogue catalogue;
	AddMusic(catalogue);
	ASSERT_EQ(catalogue.groups.size(), std::size(PIECES));
	for (const Group& group : catalogue.groups)
		EXPECT_TRUE(std::filesystem::exists(std::string(QUORBLET_SOURCE_DIR) + "/" + group.source))
		    << group.source;
}

TEST(SoundFont, IsInstalledAndItsAbsenceIsToldInOneLine)
{
	EXPECT_EQ(SoundFontFault(SOUND_FONT), "");
	EXPECT_EQ(SoundFontFault("/nowhere/a.sf2"),
	          "the sound font /nowhere/a.sf2 is missing; install the package fluid-soundfont-gm");
}

static double Level(const Wave& wave, size_t from, size_t count)
{
	double sum = 0;
	for (size_t i = 0; i < count; i++)
		sum += wave[from + i] * wave[from + i];
	return ToDb(std::sqrt(sum / (double)count));
}

// What the file sounds like after coding.
static Sound Decoded(const Score& score, std::string& bytes)
{
	Sound sound, decoded;
	std::string fault;
	EXPECT_TRUE(Record(score, sound, fault)) << fault;
	bytes = EncodeVorbis(sound, .35f);
	EXPECT_TRUE(DecodeVorbis(bytes, decoded));
	EXPECT_EQ(decoded.left.size(), sound.left.size());
	return decoded;
}

// A seam that is heard stands out among the steps of the wave, or of its slope.
static bool ClicksAtSeam(const Wave& wave)
{
	size_t size = wave.size();
	for (int order = 1; order <= 2; order++) {
		auto step = [&](size_t i) {
			double a = wave[i % size], b = wave[(i + 1) % size], c = wave[(i + 2) % size];
			return std::fabs(order == 1 ? b - a : c - 2 * b + a);
		};
		std::vector<double> steps;
		for (size_t i = 0; i + 2 < size; i++)
			steps.push_back(step(i));
		auto common = steps.begin() + (long)(steps.size() * 99 / 100);
		std::nth_element(steps.begin(), common, steps.end());
		if (std::max(step(size - 1), step(size - 2)) > *common)
			return true;
	}
	return false;
}

// 1 when both sides are the same, 0 when they have nothing in common; below that a mono speaker
// would lose sound.
static double Correlation(const Sound& sound)
{
	double both = 0, left = 0, right = 0;
	for (size_t i = 0; i < sound.left.size(); i++) {
		both += sound.left[i] * sound.right[i];
		left += sound.left[i] * sound.left[i];
		right += sound.right[i] * sound.right[i];
	}
	return both / std::sqrt(left * right);
}

TEST(MusicHeard, LoopIsLevelQuietAtItsSeamAndTheSameEachTime)
{
	Score score = Composed(PieceNamed("quiz"));
	std::string bytes, again;
	Sound sound = Decoded(score, bytes);
	EXPECT_NEAR(sound.Seconds(), score.Length(), .001);
	Figures figures = Measure(sound);
	EXPECT_NEAR(figures.loudness, -16, .3);
	EXPECT_GT(figures.range, 3);
	EXPECT_LT(figures.range, 8);
	EXPECT_LT(figures.peak, -1);
	EXPECT_GT(Correlation(sound), .5);
	EXPECT_FALSE(ClicksAtSeam(sound.left));
	EXPECT_FALSE(ClicksAtSeam(sound.right));
	Wave broken = sound.left;
	for (size_t i = 0; i < 40; i++)
		broken[i] += .2;
	EXPECT_TRUE(ClicksAtSeam(broken));
	Decoded(Composed(PieceNamed("quiz")), again);
	EXPECT_TRUE(bytes == again) << "two runs differ";
}

TEST(MusicHeard, StageTrackEndsInSilence)
{
	Score score = Composed(PieceNamed("stage1"));
	std::string bytes;
	Sound sound     = Decoded(score, bytes);
	Figures figures = Measure(sound);
	EXPECT_NEAR(figures.loudness, -16, .3);
	EXPECT_LT(figures.peak, -1);
	size_t size = sound.left.size(), second = SampleCount(1);
	EXPECT_NEAR(sound.Seconds(), score.Length() + 2.5, .01);
	EXPECT_GT(Level(sound.left, size - 4 * second, second), -40) << "the last chord sounds";
	EXPECT_LT(Level(sound.left, size - second / 10, second / 10), -60);
	EXPECT_LT(std::fabs(sound.left.back()), .003);
	EXPECT_LT((double)bytes.size(), sound.Seconds() * 19e3) << "bytes for a second";
}

// The start of a loop carries what still rings from its end; a piece that plays once starts clean.
TEST(MusicHeard, TailsRunOnOverTheSeam)
{
	for (bool loops : {true, false}) {
		Score score("tail");
		score.loops  = loops;
		Part strings = score.Add(STRINGS, 100, 64, 60);
		score.Open("only", "C | C");
		strings.Line("R | rh. c4q", 90, {.gate = 1});
		Sound sound;
		std::string fault;
		ASSERT_TRUE(Perform(score, sound, fault)) << fault;
		double start = Level(sound.left, 0, SampleCount(.1));
		if (!loops) {
			EXPECT_LT(start, -90);
			continue;
		}
		EXPECT_GT(start, -50);
		EXPECT_FALSE(ClicksAtSeam(sound.left));
		EXPECT_FALSE(ClicksAtSeam(sound.right));
	}
}

// The forge draws its groups on several threads.
TEST(MusicHeard, TwoBandsAtOnceDontDisturbEachOther)
{
	Score score("small");
	Part harp = score.Add(HARP, 100, 64, 60), kit = score.Add(KIT, 100, 64);
	score.Open("only", "C | F");
	harp.Roll("1.5.8.0.9.8.0.8.", 48, 80);
	kit.Beat("kick x...x... | hat x.x.x.x.", 70);
	Sound alone, together[2];
	std::string fault, faults[2];
	ASSERT_TRUE(Perform(score, alone, fault)) << fault;
	std::thread other([&] { Perform(score, together[1], faults[1]); });
	Perform(score, together[0], faults[0]);
	other.join();
	for (Sound& sound : together) {
		EXPECT_TRUE(sound.left == alone.left);
		EXPECT_TRUE(sound.right == alone.right);
	}
}
