// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include "Engine/World.h"
#include "Modules/ModuleManager.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FSessionRequestsTest : public FEditorStateFixture
{
protected:
	FAnswer ChangeModule(const char* Name, const char* Action)
	{
		return Ask({{"do", "module"}, {"name", Name}, {"action", Action}});
	}
	std::string GetModuleRefusal(const std::string& Name, const char* Action)
	{
		return GetRefusal({{"do", "module"}, {"name", Name}, {"action", Action}});
	}
};

TEST_F(FSessionRequestsTest, UnloadsAndLoadsAModule)
{
	ChangeModule("QuillonEditor", "unload");
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded("QuillonEditor"));
	EXPECT_EQ(Ask({{"do", "registered"}})["tabs"], FAnswer::array());
	ChangeModule("QuillonEditor", "load");
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded("QuillonEditor"));
	EXPECT_EQ(Ask({{"do", "registered"}})["tabs"], FAnswer({"CineStreamWizard"}));
}

TEST_F(FSessionRequestsTest, ClosesTabsBeforeAModuleGoes)
{
	Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
	ChangeModule("PlacementMode", "unload");
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"], FAnswer::array());
	Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
	Ask({{"do", "restart"}, {"what", "module"}});
	EXPECT_EQ(Ask({{"do", "tabs"}})["tabs"], FAnswer::array());
}

TEST_F(FSessionRequestsTest, RefusesModulesThatThereAreNot)
{
	Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
	for (const char* Name : {"Nothing", "", "../Quillon", "Quillon.so", "ä"})
	{
		const std::string Error = "there is no module \"" + std::string(Name) + "\"";
		EXPECT_EQ(GetModuleRefusal(Name, "load"), Error);
		EXPECT_EQ(GetModuleRefusal(Name, "unload"), Error);
	}
	EXPECT_EQ(GetModuleRefusal(std::string(5000, 'x'), "load").find("there is no module \"xxx"), 0u);
}

TEST_F(FSessionRequestsTest, RefusesWhatAModuleIsAlready)
{
	Ask({{"do", "invoke-tab"}, {"tab", "CineStreamWizard"}});
	EXPECT_EQ(GetModuleRefusal("Quillon", "load"), "module \"Quillon\" is loaded already");
	// A library of the engine that is no module of its own.
	EXPECT_EQ(GetModuleRefusal("Slate", "unload"), "module \"Slate\" is not loaded");
	EXPECT_EQ(GetModuleRefusal("Slate", "load"), "module \"Slate\" can't be loaded");
	EXPECT_EQ(GetModuleRefusal("Quillon", "Load"), "parameter \"action\": \"load\" or \"unload\" is wanted");
}

TEST_F(FSessionRequestsTest, RestartsTheModuleWithTheLevelOpen)
{
	const IModuleInterface* const Before = FModuleManager::Get().GetModule("QuillonEditor");
	Place("ZAVCineCamCapture");
	const FAnswer Registered = Ask({{"do", "registered"}});
	Ask({{"do", "restart"}, {"what", "module"}});
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded("QuillonEditor"));
	EXPECT_NE(Before, nullptr);
	EXPECT_EQ(Ask({{"do", "registered"}}), Registered);
	EXPECT_EQ(Ask({{"do", "level"}})["actors"].size(), 1u);
	EXPECT_FALSE(Session.IsRestartRequested());
}

TEST_F(FSessionRequestsTest, RefusesToRestartWhatDoesNotRun)
{
	EXPECT_EQ(
		GetRefusal({{"do", "restart"}, {"what", "level"}}), "parameter \"what\": \"module\" or \"editor\" is wanted");
	ChangeModule("QuillonEditor", "unload");
	EXPECT_EQ(GetRefusal({{"do", "restart"}, {"what", "module"}}), "module \"QuillonEditor\" is not loaded");
	EXPECT_FALSE(Session.IsRestartRequested());
}

TEST_F(FSessionRequestsTest, KeepsTheAssetRegistryWhileThereAreAssets)
{
	Ask({{"do", "open-level"}, {"file", std::string(QUILLON_SAMPLES_DIR) + "/studio.json"}});
	EXPECT_EQ(GetRefusal({{"do", "module"}, {"name", "AssetRegistry"}, {"action", "unload"}}),
		"module \"AssetRegistry\" keeps the list of the level's assets: make a new level first");
	Ask({{"do", "new-level"}});
	Ask({{"do", "module"}, {"name", "AssetRegistry"}, {"action", "unload"}});
}

TEST_F(FSessionRequestsTest, LeavesTheEditorsRestartToItsProcess)
{
	Ask({{"do", "restart"}, {"what", "editor"}});
	EXPECT_TRUE(Session.IsRestartRequested());
}

TEST_F(FSessionRequestsTest, TurnsTheClock)
{
	const double Before = Session.GetTime();
	Ask({{"do", "advance"}, {"seconds", 2.5}});
	EXPECT_DOUBLE_EQ(Session.GetTime() - Before, 2.5 + 1.0 / 60.0);
	EXPECT_EQ(GetRefusal({{"do", "advance"}, {"seconds", -1}}), "parameter \"seconds\": the number is below 0");
}

TEST_F(FSessionRequestsTest, CollectsGarbage)
{
	const TWeakObjectPtr<UObject> Garbage = NewObject<UWorld>();
	ASSERT_TRUE(Garbage.IsValid());
	// Not through Answer, which ticks, and collects thereby as well.
	for (const FRequestDefinition& Definition : FRequestTable::GetAll())
	{
		if (Definition.Do == std::string("collect"))
		{
			Definition.Run(Session, FRequest(nlohmann::json::object()));
		}
	}
	EXPECT_FALSE(Garbage.IsValid());
}

TEST_F(FSessionRequestsTest, HasNoPicturesInTheNullView)
{
	EXPECT_EQ(GetRefusal({{"do", "screenshot"}, {"file", "a.png"}, {"tab", "CineStreamWizard"}}),
		"the null view has no pictures");
}
