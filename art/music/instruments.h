// The players of the band: programs of the sound font and the keys that suit them.
#pragma once

struct Instrument {
	int program;   // General MIDI, from 0
	int low, high; // MIDI keys that sound well
	const char* name;
	bool drums = false;
};

// clang-format off
// where the tune and what answers it lie
const Instrument FLUTE       = { 73, 60, 96, "flute" };
const Instrument PAN_FLUTE   = { 75, 60, 91, "pan flute" };
const Instrument WHISTLE     = { 78, 60, 93, "whistle" };
const Instrument OBOE        = { 68, 58, 86, "oboe" };
const Instrument CLARINET    = { 71, 50, 91, "clarinet" };
const Instrument BASSOON     = { 70, 34, 67, "bassoon" };
const Instrument HORN        = { 60, 41, 76, "horn" };
const Instrument HARMONICA   = { 22, 55, 91, "harmonica" };
const Instrument ACCORDION   = { 21, 48, 86, "accordion" };
const Instrument FIDDLE      = { 110, 55, 93, "fiddle" };
const Instrument STRINGS     = { 48, 43, 93, "strings" };
const Instrument SLOW_STRINGS= { 49, 43, 91, "slow strings" };
const Instrument CHOIR       = { 52, 48, 81, "choir" };
const Instrument PAD         = { 92, 45, 84, "pad" };
// struck and plucked
const Instrument CELESTA     = { 8, 60, 103, "celesta" };
const Instrument GLOCK       = { 9, 76, 105, "glockenspiel" };
const Instrument VIBRAPHONE  = { 11, 53, 91, "vibraphone" };
const Instrument MARIMBA     = { 12, 45, 93, "marimba" };
const Instrument XYLOPHONE   = { 13, 62, 103, "xylophone" };
const Instrument DULCIMER    = { 15, 48, 88, "dulcimer" };
const Instrument KALIMBA     = { 108, 52, 88, "kalimba" };
const Instrument STEEL_DRUM  = { 114, 55, 91, "steel drum" };
const Instrument HARP        = { 46, 36, 98, "harp" };
const Instrument PIZZICATO   = { 45, 40, 88, "pizzicato" };
const Instrument NYLON       = { 24, 40, 84, "nylon guitar" };
const Instrument STEEL_GUITAR= { 25, 40, 84, "steel-string guitar" };
const Instrument BANJO       = { 105, 48, 84, "banjo" };
const Instrument HONKY_TONK  = { 3, 43, 96, "honky-tonk piano" };
// the ground
const Instrument BASS        = { 32, 33, 55, "bass" };
const Instrument FINGER_BASS = { 33, 33, 55, "finger bass" };
const Instrument BOWED_BASS  = { 43, 31, 55, "bowed bass" };
const Instrument TUBA        = { 58, 31, 55, "tuba" };
const Instrument TIMPANI     = { 47, 36, 55, "timpani" };
const Instrument KIT         = { 0, 0, 127, "kit", true };
const Instrument BRUSH_KIT   = { 40, 0, 127, "brush kit", true };
// clang-format on
