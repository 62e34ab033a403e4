// Turns the table of a species into sprites, sounds and action records.
#include "animals/species.h"

#include "frame/debug.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

// Endings of a word that its files carry after the side.
static const char* const TAILS[] = {"blink", "eyeswide", "smile"};

static std::vector<std::string> Split(const std::string& text, char separator)
{
	std::vector<std::string> parts;
	std::string part;
	for (char c : text + separator) {
		if (c != separator)
			part += c;
		else if (!part.empty())
			parts.push_back(part), part.clear();
	}
	return parts;
}

static bool EndsWith(const std::string& text, const std::string& end)
{
	return text.size() > end.size() && text.ends_with(end);
}

// The stems under which the groups of a frames text find their files.
struct Stems {
	std::string prefix;   // for "=word"
	std::string plain;    // with word and side, for a word of the group's own
	std::string numbered; // and with the word's tail, for numbers
};

// Adds the files of one group of a frames text: a word or none, numbers or none, times or none.
static void AddGroup(const std::string& group, const Stems& stems, std::vector<std::string>& files)
{
	size_t star         = group.find('*');
	std::string what    = group.substr(0, star);
	int times           = star == std::string::npos ? 1 : std::atoi(group.c_str() + star + 1);
	size_t digit        = std::min(what.find_first_of("0123456789"), what.size());
	std::string word    = what.substr(0, digit);
	std::string numbers = what.substr(digit);

	std::string stem = stems.plain + word;
	if (word.empty() || word == ".")
		stem = stems.numbered;
	else if (word[0] == '=')
		stem = stems.prefix + word.substr(1);

	size_t dash = numbers.find('-');
	if (dash == std::string::npos) {
		files.insert(files.end(), times, stem + numbers + ".png");
		return;
	}
	int first = std::atoi(numbers.c_str()), last = std::atoi(numbers.c_str() + dash + 1);
	int step = first <= last ? 1 : -1;
	for (int i = first; i != last + step; i += step)
		files.push_back(stem + std::to_string(i) + ".png");
}

std::vector<std::string> PictureFiles(const char* prefix, const char* word, bool left,
                                      const char* frames)
{
	std::string head = word, tail;
	for (const char* candidate : TAILS) {
		if (EndsWith(head, candidate)) {
			tail = candidate;
			head.resize(head.size() - tail.size());
			break;
		}
	}
	std::string plain = prefix + head + (left ? "left" : "right");

	std::vector<std::string> files;
	for (const std::string& group : Split(*frames ? frames : ".", ' '))
		AddGroup(group, {prefix, plain, plain + tail}, files);
	return files;
}

std::string WordOf(const ActionRow& row)
{
	const char* colon = strchr(row.name, ':');
	return colon ? colon + 1 : row.name;
}

std::string KeyOf(const ActionRow& row)
{
	const char* colon = strchr(row.name, ':');
	return colon ? std::string(row.name, colon) : row.name;
}

std::string DownWord(const std::string& upWord)
{
	return upWord.ends_with("up") ? upWord.substr(0, upWord.size() - 2) + "down" : "";
}

const ActionRow* FindRow(const SpeciesTable& table, const std::string& key)
{
	for (const ActionRow& row : table.actions) {
		if (KeyOf(row) == key)
			return &row;
	}
	return nullptr;
}

std::vector<std::string> FollowUps(const ActionRow& row)
{
	return strcmp(row.then, ANY) == 0 ? std::vector<std::string>() : Split(row.then, '/');
}

static bool IsTwoWayKind(int kind)
{
	return kind >= ACTION_WALK_BOTH && kind <= ACTION_FLUTTER;
}

static bool HasOwnExit(const ActionOptions& options)
{
	return options.exitFrames && strcmp(options.exitFrames, NO_EXIT) != 0 &&
	       strcmp(options.exitFrames, EXIT_BACK) != 0;
}

std::vector<std::string> AllPictureFiles(const SpeciesTable& table)
{
	std::vector<std::string> all;
	auto add = [&](const std::string& word, const char* frames) {
		for (bool left : {true, false}) {
			for (const std::string& file : PictureFiles(table.prefix, word.c_str(), left, frames)) {
				if (std::find(all.begin(), all.end(), file) == all.end())
					all.push_back(file);
			}
		}
	};
	for (const ActionRow& row : table.actions) {
		add(WordOf(row), row.frames);
		if (IsTwoWayKind(row.kind) && !DownWord(WordOf(row)).empty())
			add(DownWord(WordOf(row)), row.frames);
		if (row.options.holdFrames)
			add(WordOf(row), row.options.holdFrames);
		if (HasOwnExit(row.options))
			add(WordOf(row), row.options.exitFrames);
	}
	for (const PictureRow& row : table.pictures) {
		add(row.name, row.frames);
		if (row.rightFrames)
			add(row.name, row.rightFrames);
	}
	return all;
}

static FrameSpan EntryTime(const ActionRow& row)
{
	if (row.options.time.fixed != BY_KIND.fixed)
		return row.options.time;
	switch (row.kind) {
	case ACTION_IDLE:
		return Between(15, 120);
	case ACTION_BLINK:
		return Frames(2);
	case ACTION_CHEW:
		return Between(60, 120);
	case ACTION_WALK:
	case ACTION_WALK_BOTH:
	case ACTION_FLIGHT:
		return Between(30, 90);
	case ACTION_FALL:
	case ACTION_CLIMB:
		return Frames(1);
	default:
		return UNTIL_END;
	}
}

static FrameSpan HoldTime(const ActionRow& row)
{
	if (row.options.hold.fixed != BY_KIND.fixed)
		return row.options.hold;
	return row.kind == ACTION_LOOK ? Between(15, 120) : NO_HOLD;
}

// The pictures of an action's exit, in order; empty without one.
static std::vector<std::string> ExitFiles(const SpeciesTable& table, const ActionRow& row,
                                          bool left)
{
	const char* frames = row.options.exitFrames;
	if (HasOwnExit(row.options))
		return PictureFiles(table.prefix, WordOf(row).c_str(), left, frames);
	bool back = frames ? strcmp(frames, EXIT_BACK) == 0 : row.kind == ACTION_LOOK;
	if (!back)
		return {};
	std::vector<std::string> files =
	    PictureFiles(table.prefix, WordOf(row).c_str(), left, row.frames);
	std::reverse(files.begin(), files.end());
	return files;
}

// Fills an animal from its table. One object a build; it only keeps what the steps share.
struct SpeciesBuilder {
	CElementAnimal* animal;
	const SpeciesTable& table;

	CSprite* NewSprite(const std::vector<std::string>& files, int ticks, const std::string& word,
	                   bool left)
	{
		CSprite* sprite = animal->OwnSprite(new CSprite(0, ticks));
		for (const std::string& file : files)
			sprite->AddFile(file);
		sprite->Hide();
		sprite->SetStopAtEnd();
		NoteShift(sprite, word, left);
		return sprite;
	}

	CSprite* Entry(const ActionRow& row, const std::string& word, bool left)
	{
		CSprite* sprite = NewSprite(PictureFiles(table.prefix, word.c_str(), left, row.frames),
		                            row.options.ticks, word, left);
		LoopUnless(sprite, EntryTime(row).UntilPicturesEnd() || row.options.once,
		           row.options.loopFrom);
		sprite->behindFoliage = row.kind == ACTION_CLIMB; // before the trunk, behind the leaves
		return sprite;
	}

	static void LoopUnless(CSprite* sprite, bool once, int loopFrom)
	{
		sprite->stopAtEnd = once;
		sprite->SetLoopStart(loopFrom);
	}

	void NoteShift(CSprite* sprite, const std::string& word, bool left)
	{
		for (const PicturePlace& place : table.places) {
			if (word == place.word) {
				animal->shifts.push_back(
				    {sprite, left ? place.leftX : place.rightX, left ? place.leftY : place.rightY});
				return;
			}
		}
		if (!animal->collisionSprite)
			return; // the standing picture itself
		int dx = (animal->collisionSprite->Width() - sprite->Width()) / 2;
		int dy = animal->collisionSprite->Height() - sprite->Height();
		if (dx != 0 || dy != 0)
			animal->shifts.push_back({sprite, dx, dy});
	}

	void BuildEntry(AnimalAction* action, const ActionRow& row)
	{
		std::string word    = WordOf(row);
		action->spriteLeft  = Entry(row, word, true);
		action->spriteRight = Entry(row, word, false);
		if (!animal->collisionSprite) {
			animal->collisionSprite = action->spriteLeft;
			animal->currentSprite   = action->spriteLeft;
		}
		if (!action->IsTwoWay())
			return;
		std::string down        = DownWord(word);
		action->spriteDownLeft  = down.empty() ? action->spriteLeft : Entry(row, down, true);
		action->spriteDownRight = down.empty() ? action->spriteRight : Entry(row, down, false);
	}

	void BuildMiddle(AnimalAction* action, const ActionRow& row)
	{
		action->middle = HoldTime(row);
		if (!row.options.holdFrames)
			return;
		std::string word = WordOf(row);
		for (bool left : {true, false}) {
			CSprite* sprite =
			    NewSprite(PictureFiles(table.prefix, word.c_str(), left, row.options.holdFrames),
			              row.options.ticks, word, left);
			LoopUnless(sprite, false, 0);
			(left ? action->middleLeft : action->middleRight) = sprite;
		}
	}

	void BuildExit(AnimalAction* action, const ActionRow& row)
	{
		action->exit = row.options.exitTime;
		for (bool left : {true, false}) {
			std::vector<std::string> files = ExitFiles(table, row, left);
			if (files.empty())
				return;
			(left ? action->exitLeft : action->exitRight) =
			    NewSprite(files, row.options.ticks, WordOf(row), left);
		}
	}

	void BuildSounds(AnimalAction* action, const ActionOptions& options)
	{
		for (int i = 0; i < 4 && options.sounds[i]; i++)
			action->sounds[i] = animal->OwnSound(new CSound(options.sounds[i]));
		if (options.sounds[0])
			action->soundDelay = options.soundDelay;
		if (options.extraSound) {
			action->extraSound      = animal->OwnSound(new CSound(options.extraSound));
			action->extraSoundDelay = options.extraDelay;
		}
	}

	void BuildAction(const ActionRow& row)
	{
		AnimalAction* action = new AnimalAction;
		action->name         = row.name;
		action->kind         = row.kind;
		action->weight       = row.weight;
		action->entry        = EntryTime(row);
		action->repeats      = row.options.repeats;
		action->notInTree    = !row.options.inTree;
		action->notPerched   = !row.options.perched;
		BuildEntry(action, row);
		BuildMiddle(action, row);
		BuildExit(action, row);
		BuildSounds(action, row.options);
		animal->actions.push_back(action);

		if (row.role == ROLE_BUMP)
			animal->bumpAction = action;
		if (row.role == ROLE_FLIGHT)
			animal->flightAction = action;
	}

	AnimalAction* ActionOf(const std::string& key) const
	{
		const ActionRow* row = FindRow(table, key);
		if (!row)
			Error("No such action of a species:", std::string(table.prefix) + " " + key, true,
			      true);
		return animal->actions[row - table.actions.data()];
	}

	// The idle action alone always leaves the next one to chance.
	void Join(AnimalAction* action, const ActionRow& row) const
	{
		std::vector<std::string> keys = FollowUps(row);
		if (keys.empty()) {
			if (action != animal->idleAction && strcmp(row.then, ANY) != 0)
				action->next1 = animal->idleAction;
			return;
		}
		action->next1 = ActionOf(keys[0]);
		if (keys.size() > 1)
			action->next2 = ActionOf(keys[1]);
		if (keys.size() > 2)
			action->next3 = ActionOf(keys[2]);
	}
};

void CElementAnimal::BuildActions(const SpeciesTable& newTable)
{
	table = &newTable;
	SpeciesBuilder builder{this, newTable};
	for (const ActionRow& row : newTable.actions)
		builder.BuildAction(row);
	idleAction = actions[0];
	for (size_t i = 0; i < actions.size(); i++)
		builder.Join(actions[i], newTable.actions[i]);
}

CSprite* CElementAnimal::LoadPicture(const PictureRow& row, bool left)
{
	SpeciesBuilder builder{this, *table};
	const char* frames = !left && row.rightFrames ? row.rightFrames : row.frames;
	CSprite* sprite    = builder.NewSprite(PictureFiles(table->prefix, row.name, left, frames),
	                                       row.ticks, row.name, left);
	SpeciesBuilder::LoopUnless(sprite, !row.loops, row.loopFrom);
	if (!collisionSprite)
		collisionSprite = currentSprite = sprite;
	return sprite;
}

void CElementAnimal::LoadPictures(const SpeciesTable& newTable, CSprite* (*sprites)[2])
{
	table = &newTable;
	for (size_t i = 0; i < newTable.pictures.size(); i++) {
		for (bool left : {true, false})
			sprites[i][left] = LoadPicture(newTable.pictures[i], left);
	}
}

void CElementAnimal::LoadCall(const std::string& soundName)
{
	callSound = OwnSound(new CSound(soundName));
}
