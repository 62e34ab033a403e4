// The pictures that every walking bird has.
#include "art/animals/bird_pictures.h"

#include "art/animals/beast.h"

void AddBirdPictures(Catalogue& catalogue, const char* source, Species (*species)(),
                     const std::vector<Sequence>& sequences)
{
	std::vector<Sequence> all = {{"stand", {species().rest}, "", false}};
	all.insert(all.end(), sequences.begin(), sequences.end());
	AddSequences(catalogue, source, species, all);
	AddInBubble(catalogue, source, species);
}
