// What all screens of widgets share: build and tear-down, the frame, keys and mouse.
#pragma once

#include "frame/controller.h"

// A screen reads as its Build, its events and its TearDown. Its constructor calls Open, its
// destructor Close; before it pushes a child of its own it calls Close, and Open in Enter.
class CScreen : public CController
{
public:
	void Enter() override {} // most of them have no child
	void Update() override;
	void OnKey(bool released, int key) override;
	void OnMouseMove(int x, int y) override;
	void OnMouseButton(bool left, bool right, bool released) override;

protected:
	virtual void Build()    = 0; // makes sprites and widgets
	virtual void TearDown() = 0; // deletes them, each pointer back to null
	virtual void Step() {}       // each frame while current, after the widgets
	// Keys that move no focus and press nothing. The usual answer to Escape is EndByKey.
	virtual void OnOtherKey(bool /*released*/, int /*key*/) {}

	void Open();  // builds, unless built
	void Close(); // tears down, unless torn down
	bool IsOpen() const { return built; }
	void EndByKey(); // the selection sound, and back to the parent

private:
	bool built = false;
};
