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

Poses TossHorn();       // a rhino's: furious
Poses TossAntlers();    // a moose's, with a grunt
Poses FallToItsKnees(); // a camel's
Poses StartUp();        // a deer's leap on the spot

// Down, each by its temper; the game holds the last picture and plays them back.
Poses Stalk();           // big cats
Poses Slink();           // hyena
Poses Doze();            // hippo
Poses LowerHorn();       // rhino
Poses Browse();          // moose
Poses LookDownItsNose(); // camel
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
// 5 still stands, 1 lies curled up, 0 and 1 in turn breathe.
Poses Sleep();
Poses Gallop(int count, Heading heading = Heading::Side);
