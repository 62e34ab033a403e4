// Calls the entry points of all families, in order.
#include "art/families.h"

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
	AddPortraits(catalogue);
}
