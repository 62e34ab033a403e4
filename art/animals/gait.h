// Where a foot is in its stride.
#pragma once

// Parts of a full step: ahead -1..1 from the joint, lift 0..1 off the ground.
struct Step {
	float ahead = 0, lift = 0;
};

// phase: 0..1 of a stride, any number wraps round. The foot stays on the ground for most of it and
// goes straight back, then swings forward.
Step StepAt(float phase);
