// A controller that writes down what reaches it.
#pragma once

#include "frame/controller.h"

#include <functional>
#include <string>

class CFakeController : public CController
{
public:
	explicit CFakeController(std::string* newLog = nullptr, const std::string& newTag = "")
	    : log(newLog ? newLog : &ownLog), tag(newTag)
	{
	}

	void Enter() override { *log += tag + "enter "; }
	void Update() override
	{
		*log += tag + "update ";
		if (onUpdate)
			onUpdate();
	}
	void OnKey(bool released, int key) override
	{
		*log += tag + (released ? "up:" : "down:") + std::to_string(key) + " ";
	}
	void OnMouseMove(int x, int y) override
	{
		*log += tag + "move:" + std::to_string(x) + "," + std::to_string(y) + " ";
	}
	void OnMouseButton(bool left, bool right, bool released) override
	{
		*log += tag + (left ? "left" : "") + (right ? "right" : "") + (released ? "up " : "down ");
	}
	void OnGuiEvent(int id, int value) override
	{
		*log += tag + "gui:" + std::to_string(id) + "," + std::to_string(value) + " ";
	}
	const char* Name() const override { return "CFakeController"; }

	// What was written since the last call.
	std::string Take()
	{
		std::string taken = *log;
		log->clear();
		return taken;
	}

	std::string ownLog;
	std::string* log;
	std::string tag;
	std::function<void()> onUpdate;
};
