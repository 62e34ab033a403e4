// One entry point for each family of pictures; every call adds its groups to the catalogue.
#pragma once

#include "art/core/catalogue.h"

// the interface
void AddPanel(Catalogue& catalogue);       // side panel, its strips, doors, discs and names
void AddFonts(Catalogue& catalogue);       // glyphs, letters of greetings and timer, flyaway digits
void AddWidgets(Catalogue& catalogue);     // check box, slider, field, cursors, fader, markers
void AddSigns(Catalogue& catalogue);       // signs and banners over the field
void AddOpening(Catalogue& catalogue);     // loading picture, splash, icon
void AddMenuPicture(Catalogue& catalogue); // main menu: sky, land, leaves, water
void AddMenuBoard(Catalogue& catalogue);   // its title and the player's panel
void AddMenuAnimals(Catalogue& catalogue);
void AddMenuDriver(Catalogue& catalogue); // the professor at the wheel
void AddMenuFish(Catalogue& catalogue);
void AddMenuButtons(Catalogue& catalogue);
void AddDialog(Catalogue& catalogue);         // the modal box
void AddPause(Catalogue& catalogue);          // the menu within a level
void AddBonusCard(Catalogue& catalogue);      // title card of a bonus level
void AddBonusCardWords(Catalogue& catalogue); // and its sentences
void AddTally(Catalogue& catalogue);          // panel, boxes and buttons after a level
void AddTallyWords(Catalogue& catalogue);     // and its sentences
void AddTallyAnimals(Catalogue& catalogue);   // each species, standing
void AddGameChoice(Catalogue& catalogue);     // kind of game, go on or start anew
void AddProfilePages(Catalogue& catalogue);   // list of players, box for a name
void AddOptionsPages(Catalogue& catalogue);   // options and control keys
void AddInstructions(Catalogue& catalogue);   // instructions and hint page
void AddCredits(Catalogue& catalogue);
void AddMapIslands(Catalogue& catalogue); // close-ups, overview, lit groups
void AddMapDots(Catalogue& catalogue);    // dots of the levels in all states
void AddMapBoxes(Catalogue& catalogue);   // boxes, key, digits, labels, help
void AddMapButtons(Catalogue& catalogue); // and the arrows to other groups

// what stands behind and around the play
void AddSkies(Catalogue& catalogue);   // skies, suns, clouds, rainbow, overlays
void AddSea(Catalogue& catalogue);     // three bands of water and their moving crests
void AddGrounds(Catalogue& catalogue); // four grounds, hills, boundary walls, railroad
void AddTrees(Catalogue& catalogue);   // trunks, leaves, tiers of pines
void AddPalms(Catalogue& catalogue);   // trunks and fronds
void AddRocks(Catalogue& catalogue);
void AddCacti(Catalogue& catalogue);
void AddWeather(Catalogue& catalogue); // rain, snow, fireflies
void AddDecor(Catalogue& catalogue);   // flowers and tufts of grass

// what moves and breaks on the field
void AddMachine(Catalogue& catalogue);   // body, wheels, bumpers, flames, stun, ray
void AddProfessor(Catalogue& catalogue); // at rest and his nine moves
void AddBall(Catalogue& catalogue);      // 19 stages in three skins, shadows, trail
void AddCrates(Catalogue& catalogue);    // crates, barrels, explosions, order numbers
void AddFences(Catalogue& catalogue);    // posts and rails
void AddDrums(Catalogue& catalogue);     // drums and the cloud
void AddPrizes(Catalogue& catalogue);    // balloons, disc, its marks, money bag, sparkles
void AddShield(Catalogue& catalogue);    // the energy floor
void AddPoints(Catalogue& catalogue);    // fruit, coins, eggs
void AddSaucer(Catalogue& catalogue);    // hull and rim by damage, lights, dome, antenna, shadow
void AddSaucerAntenna(Catalogue& catalogue);
void AddSaucerFire(Catalogue& catalogue); // shot, splash, explosion

// animals
void AddSheep(Catalogue& catalogue);
void AddMonkey(Catalogue& catalogue);
void AddDuck(Catalogue& catalogue);
void AddDuckling(Catalogue& catalogue);
void AddButterflies(Catalogue& catalogue);
void AddCow(Catalogue& catalogue);
void AddPigs(Catalogue& catalogue);          // pig, warthog
void AddBears(Catalogue& catalogue);         // bear, polar bear, panda
void AddHorses(Catalogue& catalogue);        // horse, zebra, unicorn, donkey
void AddGoats(Catalogue& catalogue);         // goat, bighorn
void AddDogs(Catalogue& catalogue);          // dog, fox, wolf, coyote, hyena
void AddCats(Catalogue& catalogue);          // cat, tiger, snow tiger, lion
void AddGiants(Catalogue& catalogue);        // elephant, hippo, rhino
void AddDeer(Catalogue& catalogue);          // deer, moose, camel
void AddRovers(Catalogue& catalogue);        // mouse, raccoon, skunk
void AddPerchingBirds(Catalogue& catalogue); // bluebird, pigeon, crow
void AddRaptors(Catalogue& catalogue);       // vulture, eagle
void AddOwls(Catalogue& catalogue);          // owl, snowy owl
void AddRoadrunner(Catalogue& catalogue);
void AddTurtles(Catalogue& catalogue); // turtle, tortoise
void AddSnake(Catalogue& catalogue);
void AddLizard(Catalogue& catalogue);
void AddSeals(Catalogue& catalogue);      // seal, walrus
void AddBot(Catalogue& catalogue);        // the robot
void AddAlien(Catalogue& catalogue);      // on the ground
void AddAlienPilot(Catalogue& catalogue); // in its saucer
void AddChicken(Catalogue& catalogue);
void AddGeese(Catalogue& catalogue); // goose, swan
void AddFlamingo(Catalogue& catalogue);
void AddPenguin(Catalogue& catalogue);
void AddOstrich(Catalogue& catalogue);
void AddRabbits(Catalogue& catalogue);   // rabbit, snowshoe hare, jackrabbit
void AddKangaroos(Catalogue& catalogue); // kangaroo, joey
void AddFrog(Catalogue& catalogue);
void AddSquirrels(Catalogue& catalogue); // squirrel, chipmunk
void AddKoala(Catalogue& catalogue);
void AddPortraits(Catalogue& catalogue); // in the side panel: faces, closed lids, names

// what is heard
void AddFarmSounds(Catalogue& catalogue);      // cow, sheep, goat, pig, horse, donkey
void AddYardSounds(Catalogue& catalogue);      // dog, cat, mouse, chicken, duck, goose
void AddWildSounds(Catalogue& catalogue);      // wolf, bear, tiger, elephant, monkey, hyena
void AddMarshSounds(Catalogue& catalogue);     // seal, walrus, hippo, moose, camel, frog
void AddBirdSounds(Catalogue& catalogue);      // crow, owl, songbird, birds of prey, penguin
void AddMotionSounds(Catalogue& catalogue);    // feet, falls, sprays, the rattle
void AddBubbleSounds(Catalogue& catalogue);    // the ball and the balloons
void AddPrizeSounds(Catalogue& catalogue);     // animals, coins and prizes gathered
void AddInterfaceSounds(Catalogue& catalogue); // presses, counting, flyaways
void AddWoodSounds(Catalogue& catalogue);      // crates and barrels
void AddMetalSounds(Catalogue& catalogue);     // drums and robots
void AddMachineSounds(Catalogue& catalogue);   // ray, shield, fan
void AddSaucerSounds(Catalogue& catalogue);    // the saucer and its pilot
void AddWeatherSounds(Catalogue& catalogue);   // rain, hail, crickets, thunder
void AddSignals(Catalogue& catalogue);         // level won and lost, trophy, quiz

// Every entry point of the effects above.
void AddSounds(Catalogue& catalogue);
void AddMusic(Catalogue& catalogue); // eleven pieces, each a file beside the program

// Calls every entry point above, in order.
void AddEverything(Catalogue& catalogue);
