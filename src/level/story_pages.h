// Which story page belongs to which level.
#pragma once

const int NO_STORY    = -1;
const int STORY_FINAL = 37; // the last alien is caught: the end of the game follows

int StoryAtStart(int level);    // before a level's first frame, NO_STORY for none
int StoryOfSidePath(int level); // at the end of a side path
int StoryAtEnd(int level);      // after a level of the main line
int StoryOfAlien(int level);    // the level's alien was caught

// What the page of a toll carries, by level; other pages carry the value they were asked with.
int StoryValue(int kind, int level, int value);
// Pages of tolls appear only the first time.
bool IsTollStory(int kind);
