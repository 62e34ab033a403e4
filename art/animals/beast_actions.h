// Gestures of four-footed animals: functions to a list of poses.
#pragma once

#include "art/animals/actions.h"

// Bumps, 6 to 9 pictures: squashed at the first, then the gesture, then it settles.
Poses Moo();
Poses Squeal();
Poses Roar();
Poses Howl();
Poses KickOut();
Poses Bark();
Poses PawTheAir();
Poses Spray();
Poses Trumpet();
Poses Yawn(); // mouth as wide as it goes

// Up on the hind legs; the last picture is held.
Poses RearUp();
// On the hind legs from first to last.
Poses Growl();
Poses ComeDownSmiling();

// Down to the ground and up again.
Poses DipHead(int count);
// Where the game plays the way down, the meal and the way up as actions of their own.
Poses HeadDown();
Poses Chew(); // upright
Poses Whinny();
Poses Pant();
Poses Purr();
Poses Sniff();
Poses Laugh();
Poses ShakeHead();
Poses FlapEars();
// 5 still stands, 1 lies, 0 and 1 in turn breathe.
Poses Sleep();
Poses Gallop(int count, Heading heading = Heading::Side);
