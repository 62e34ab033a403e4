// The coder and decoder of OGG Vorbis over libvorbis.
#include "art/sounds/vorbis_file.h"

#include <algorithm>
#include <cstring>
#include <vorbis/vorbisenc.h>
#include <vorbis/vorbisfile.h>

static const size_t BLOCK = 4096; // samples a call: far larger ones overrun the coder's stack
static const int SERIAL   = 1;    // fixed: a random one would change the file at each run

namespace
{
// One stream on its way through the coder into a string.
class Coder
{
public:
	Coder(int sides, float quality)
	{
		vorbis_info_init(&info);
		vorbis_encode_init_vbr(&info, sides, SAMPLE_RATE, quality);
		vorbis_comment_init(&comment);
		vorbis_analysis_init(&state, &info);
		vorbis_block_init(&state, &block);
		ogg_stream_init(&stream, SERIAL);
		ogg_packet heads[3];
		vorbis_analysis_headerout(&state, &comment, &heads[0], &heads[1], &heads[2]);
		for (ogg_packet& head : heads)
			ogg_stream_packetin(&stream, &head);
		Flush();
	}
	~Coder()
	{
		ogg_stream_clear(&stream);
		vorbis_block_clear(&block);
		vorbis_dsp_clear(&state);
		vorbis_comment_clear(&comment);
		vorbis_info_clear(&info);
	}
	void Write(const Sound& sound, size_t from, size_t count)
	{
		float** room = vorbis_analysis_buffer(&state, (int)count);
		for (size_t i = 0; i < count; i++) {
			room[0][i] = (float)sound.left[from + i];
			if (sound.IsStereo())
				room[1][i] = (float)sound.right[from + i];
		}
		vorbis_analysis_wrote(&state, (int)count);
		Drain();
	}
	void End()
	{
		vorbis_analysis_wrote(&state, 0);
		Drain();
		Flush();
	}

	std::string bytes;

private:
	void Drain()
	{
		ogg_packet packet;
		while (vorbis_analysis_blockout(&state, &block) == 1) {
			vorbis_analysis(&block, nullptr);
			vorbis_bitrate_addblock(&block);
			while (vorbis_bitrate_flushpacket(&state, &packet)) {
				ogg_stream_packetin(&stream, &packet);
				while (ogg_stream_pageout(&stream, &page))
					AppendPage();
			}
		}
	}
	void Flush()
	{
		while (ogg_stream_flush(&stream, &page))
			AppendPage();
	}
	void AppendPage()
	{
		bytes.append((const char*)page.header, page.header_len);
		bytes.append((const char*)page.body, page.body_len);
	}

	vorbis_info info;
	vorbis_comment comment;
	vorbis_dsp_state state;
	vorbis_block block;
	ogg_stream_state stream;
	ogg_page page;
};

struct Source {
	const std::string& bytes;
	size_t at;
};
} // namespace

std::string EncodeVorbis(const Sound& sound, float quality)
{
	Coder coder(sound.IsStereo() ? 2 : 1, quality);
	for (size_t at = 0; at < sound.left.size(); at += BLOCK)
		coder.Write(sound, at, std::min(BLOCK, sound.left.size() - at));
	coder.End();
	return coder.bytes;
}

static size_t ReadSource(void* target, size_t size, size_t count, void* handle)
{
	Source& source = *(Source*)handle;
	size_t taken   = std::min(size * count, source.bytes.size() - source.at);
	std::memcpy(target, source.bytes.data() + source.at, taken);
	source.at += taken;
	return size ? taken / size : 0;
}

bool DecodeVorbis(const std::string& bytes, Sound& sound)
{
	sound         = Sound();
	Source source = {bytes, 0};
	OggVorbis_File file;
	ov_callbacks calls = {ReadSource, nullptr, nullptr, nullptr};
	if (ov_open_callbacks(&source, &file, nullptr, 0, calls))
		return false;
	const vorbis_info* info = ov_info(&file, -1);
	bool known              = info->rate == SAMPLE_RATE && info->channels <= 2;
	float** sides           = nullptr;
	int section             = 0;
	long count              = 0;
	while (known && (count = ov_read_float(&file, &sides, (int)BLOCK, &section)) > 0) {
		sound.left.insert(sound.left.end(), sides[0], sides[0] + count);
		if (info->channels == 2)
			sound.right.insert(sound.right.end(), sides[1], sides[1] + count);
	}
	ov_clear(&file);
	return known && count == 0 && !sound.left.empty();
}
