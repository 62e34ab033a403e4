// Results at depth, and who is current when.
#include "frame/controller.h"

#include "media/fake_controller.h"
#include "media/media_test.h"
#include "media/display.h"

class ControllerTest : public MediaTest
{
protected:
	ControllerTest()
	{
		g_running = true;
		for (int i = 0; i < 5; i++)
			chain.push_back(std::make_unique<CFakeController>(&log, std::string(1, 'a' + i)));
		chain[0]->Activate(nullptr, true);
		for (int i = 1; i < 5; i++)
			chain[i - 1]->Push(chain[i].get());
	}
	~ControllerTest() override
	{
		g_currentController = nullptr;
		g_running           = true;
	}
	std::string Tick()
	{
		log.clear();
		ControllerChainTick();
		return log;
	}
	bool MayPresent()
	{
		const int before = display->PresentedFrames();
		display->Present(true);
		return display->PresentedFrames() > before;
	}

	std::string log;
	std::vector<std::unique_ptr<CFakeController>> chain;
};

TEST_F(ControllerTest, PushHandsOverWithoutEnter)
{
	EXPECT_EQ("", log);
	EXPECT_EQ(chain[4].get(), g_currentController);
	EXPECT_TRUE(chain[4]->active);
	EXPECT_FALSE(chain[3]->active);
	EXPECT_EQ(chain[3].get(), chain[4]->parent);
	EXPECT_EQ("eupdate ", Tick());
}

TEST_F(ControllerTest, ActivateEntersOnlyARootThatIsNotQuiet)
{
	chain[0]->Activate(nullptr, false);
	EXPECT_EQ("aenter ", log);
	log.clear();
	chain[1]->Activate(chain[0].get(), false);
	EXPECT_EQ("", log);
	EXPECT_EQ(chain[1].get(), g_currentController);
}

TEST_F(ControllerTest, ReturnEntersTheParentInTheSameFrame)
{
	chain[4]->SetResult(RESULT_RETURN);
	EXPECT_EQ("eupdate denter ", Tick());
	EXPECT_TRUE(MayPresent());
	EXPECT_EQ(RESULT_NONE, chain[4]->result);
	EXPECT_EQ(RESULT_NONE, chain[3]->result) << "0 leaves the parent's result alone";
	EXPECT_TRUE(chain[3]->active);
	EXPECT_EQ("dupdate ", Tick());
}

TEST_F(ControllerTest, PositiveResultLeavesOneLevelMoreAFrame)
{
	chain[4]->SetResult(3);
	EXPECT_EQ("eupdate denter ", Tick());
	EXPECT_FALSE(MayPresent());
	EXPECT_EQ("dupdate center ", Tick());
	EXPECT_EQ("cupdate benter ", Tick());
	EXPECT_FALSE(MayPresent());
	EXPECT_EQ("bupdate aenter ", Tick());
	EXPECT_TRUE(MayPresent()) << "the last step is shown";
	EXPECT_EQ("aupdate ", Tick());
	EXPECT_TRUE(g_running);
}

TEST_F(ControllerTest, QuitUnwindsToTheRootAndShowsNothing)
{
	RequestQuit();
	for (int frame = 0; frame < 5; frame++) {
		EXPECT_TRUE(g_running);
		Tick();
		EXPECT_FALSE(MayPresent());
	}
	EXPECT_FALSE(g_running);
	EXPECT_EQ(chain[0].get(), g_currentController);
	EXPECT_FALSE(chain[0]->active);
}

TEST_F(ControllerTest, ChildPushedInUpdateIsTheOneWhoseResultCounts)
{
	CFakeController child(&log, "x");
	chain[4]->onUpdate = [&] {
		chain[4]->SetResult(RESULT_QUIT);
		chain[4]->Push(&child);
	};
	EXPECT_EQ("eupdate ", Tick());
	EXPECT_EQ(&child, g_currentController);
	EXPECT_EQ(RESULT_NONE, chain[4]->result) << "a push clears what was pending";
}

TEST_F(ControllerTest, NothingHappensWithoutACurrentController)
{
	g_currentController = nullptr;
	EXPECT_EQ("", Tick());
	RequestQuit();
	EXPECT_TRUE(g_running);
}
