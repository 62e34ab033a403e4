// What lives in the picture of the main menu.
#pragma once

class CSprite;

// Each animal rests on its first picture and now and then runs through all of them; the professor
// has two such runs. Two fish show at places of their choice.
class CMenuAnimals
{
public:
	static constexpr int IDLERS = 15, FISH = 2;

	CMenuAnimals();
	~CMenuAnimals();
	CMenuAnimals(const CMenuAnimals&)            = delete;
	CMenuAnimals& operator=(const CMenuAnimals&) = delete;

	void Step(); // once a frame; fish first, then the animals in the order of the table

	CSprite* idlers[IDLERS] = {}; // owned
	CSprite* fish[FISH]     = {}; // owned; left, right

private:
	void StepFish(CSprite* sprite);
	void StepIdler(int i);
	bool MayStart(int i) const;
	void SwapFor(int i, bool runs); // hides the one that i runs instead of, or shows it again
};
