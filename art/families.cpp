// Calls the entry points of all families, in order.
#include "art/families.h"

void AddSounds(Catalogue& catalogue)
{
	AddFarmSounds(catalogue);
	AddYardSounds(catalogue);
	AddWildSounds(catalogue);
	AddMarshSounds(catalogue);
	AddBirdSounds(catalogue);
	AddMotionSounds(catalogue);
	AddBubbleSounds(catalogue);
	AddPrizeSounds(catalogue);
	AddInterfaceSounds(catalogue);
	AddWoodSounds(catalogue);
	AddMetalSounds(catalogue);
	AddMachineSounds(catalogue);
	AddSaucerSounds(catalogue);
	AddWeatherSounds(catalogue);
	AddSignals(catalogue);
}

void AddEverything(Catalogue& catalogue)
{
	AddPanel(catalogue);
	AddFonts(catalogue);
	AddWidgets(catalogue);
	AddSigns(catalogue);
	AddOpening(catalogue);

	AddMachine(catalogue);
	AddProfessor(catalogue);
	AddBall(catalogue);
	AddCrates(catalogue);
	AddFences(catalogue);
	AddDrums(catalogue);
	AddPrizes(catalogue);
	AddShield(catalogue);
	AddPoints(catalogue);

	AddSkies(catalogue);
	AddSea(catalogue);
	AddGrounds(catalogue);
	AddTrees(catalogue);
	AddPalms(catalogue);
	AddRocks(catalogue);
	AddCacti(catalogue);
	AddWeather(catalogue);
	AddDecor(catalogue);

	AddSheep(catalogue);
	AddMonkey(catalogue);
	AddDuck(catalogue);
	AddDuckling(catalogue);
	AddButterflies(catalogue);
	AddCow(catalogue);
	AddPigs(catalogue);
	AddBears(catalogue);
	AddHorses(catalogue);
	AddGoats(catalogue);
	AddDogs(catalogue);
	AddCats(catalogue);
	AddGiants(catalogue);
	AddDeer(catalogue);
	AddRovers(catalogue);
	AddPortraits(catalogue);

	AddSounds(catalogue);
	AddMusic(catalogue);
}
