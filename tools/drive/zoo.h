// A meadow with nothing on it but the animals that a script names, and orders to them.
#pragma once

#include <string>
#include <vector>

class CControllerGame;

// Clears a running level of all but panel, paddle, ball and shield, and puts one animal of each
// species on it, in rows. Words are species by the prefix of their pictures ("bear"), "all", or
// one of grass, sand, snow, night for the ground and left, right for the facing of what follows.
// On an unknown word it returns false, tells it in problem, and leaves the level as it was.
bool BuildZoo(CControllerGame* game, const std::vector<std::string>& words, std::string& problem);

// Has all animals of a species start an action, by its word or tag in the species' table, or
// "bump". An animal with a machine of its own only shows the pictures of the word. False and a
// problem when there is no such animal or word.
bool ForceAction(const std::string& prefix, const std::string& word, std::string& problem);
