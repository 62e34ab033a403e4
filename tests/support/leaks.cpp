// What the leak checker passes over: SDL keeps small records of each video mode that it has set,
// fontconfig its lists of fonts, the sound file library what it has read of a Vorbis file that it
// refuses.

extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions()
{
	return "leak:libSDL2\nleak:libSDL-1.2\nleak:libfontconfig\nleak:vorbis_info_init\n";
}
