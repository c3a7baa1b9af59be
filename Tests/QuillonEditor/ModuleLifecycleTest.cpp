// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "StandaloneEditor.h"
#include "TextDescription.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"
#include "Standalone/EnsureReports.h"
#include "Standalone/SlateNullRenderer.h"
#include "Styling/SlateStyleRegistry.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
	const TCHAR* const StyleName = TEXT("QuillonEditorStyle");
	const TCHAR* const TabName = TEXT("CineStreamWizard");

	bool HasStyle()
	{
		return FSlateStyleRegistry::FindSlateStyle(StyleName) != nullptr;
	}
	bool HasTab()
	{
		return FGlobalTabmanager::Get()->HasTabSpawner(TabName);
	}

	/** Remembers what was registered when textures were reloaded. */
	class FWatchfulRenderer : public FSlateNullRenderer
	{
	public:
		virtual void ReloadTextureResources() override
		{
			++Reloads;
			bHadStyle = HasStyle();
			bHadTab = HasTab();
		}

		int32 Reloads = 0;
		bool bHadStyle = false;
		bool bHadTab = false;
	};
}

/** An editor that runs, and the product's module as the test loads it. */
class FModuleLifecycle : public ::testing::Test
{
protected:
	FModuleLifecycle()
	{
		std::string Error;
		const bool bStarted = Editor.Start(FStandaloneEditorOptions(), Error);
		EXPECT_TRUE(bStarted) << Error;
	}
	static bool Load() { return FModuleManager::Get().LoadModule("QuillonEditor") != nullptr; }
	static bool Unload() { return FModuleManager::Get().UnloadModule("QuillonEditor"); }

	FStandaloneEditor Editor;
};

TEST_F(FModuleLifecycle, RegistersStyleAndTabAtStart)
{
	EXPECT_TRUE(HasStyle());
	EXPECT_TRUE(HasTab());
}

TEST_F(FModuleLifecycle, RegistersTheStyleAndReloadsTexturesBeforeItRegistersTheTab)
{
	ASSERT_TRUE(Unload());
	const TSharedRef<FWatchfulRenderer> Renderer = MakeShared<FWatchfulRenderer>();
	FSlateApplication::Get().InitializeRenderer(Renderer);
	ASSERT_TRUE(Load());
	EXPECT_EQ(Renderer->Reloads, 1);
	EXPECT_TRUE(Renderer->bHadStyle);
	EXPECT_FALSE(Renderer->bHadTab);
}

TEST_F(FModuleLifecycle, TakesStyleAndTabOutAtShutDown)
{
	ASSERT_TRUE(Unload());
	EXPECT_FALSE(HasStyle());
	EXPECT_FALSE(HasTab());
}

TEST_F(FModuleLifecycle, CanStartAgainAfterShutDown)
{
	for (int Round = 0; Round < 100; ++Round)
	{
		ASSERT_TRUE(Unload());
		ASSERT_TRUE(Load());
	}
	EXPECT_TRUE(HasStyle());
	EXPECT_TRUE(HasTab());
	EXPECT_TRUE(FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabName)).IsValid());
}

TEST_F(FModuleLifecycle, ShutsDownQuietlyWhenNobodyHoldsTheStyle)
{
	int32 Reports = 0;
	const FDelegateHandle Handle =
		FEnsureReports::OnReported().AddLambda([&Reports](const FEnsureReport&) { ++Reports; });
	EXPECT_TRUE(Unload());
	FEnsureReports::OnReported().Remove(Handle);
	EXPECT_EQ(Reports, 0);
}

TEST_F(FModuleLifecycle, OffersTheTabWithItsTextsIconAndWithoutAMenuEntry)
{
	ASSERT_TRUE(FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabName)).IsValid());
	const TSharedRef<FTabSpawnerEntry> Entry = FGlobalTabmanager::Get()->GetOpenTabs()[0].Spawner;
	const FText Name = Entry->GetDisplayName();
	EXPECT_EQ(DescribeText(Name), "FQuillonEditorModule,CineStreamWizardTitle,Cine Stream Wizard");
	const FText Tooltip = Entry->GetTooltipText();
	EXPECT_EQ(
		DescribeText(Tooltip), "FQuillonEditorModule,CineStreamWizardTooltipText,Open the Cine Stream Wizard tab.");
	EXPECT_FALSE(Entry->ShouldAutoGenerateMenuEntry());
	EXPECT_TRUE(Entry->GetIcon().GetStyleSetName().ToString().Equals("QuillonEditorStyle"));
	EXPECT_TRUE(Entry->GetIcon().GetStyleName().ToString().Equals("ZAVQuillon.WizardIcon_16x"));
}

TEST_F(FModuleLifecycle, BringsTheOpenTabForwardInsteadOfOpeningASecondOne)
{
	const TSharedRef<FGlobalTabmanager>& Tabs = FGlobalTabmanager::Get();
	Tabs->RegisterNomadTabSpawner("Other",
		FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab).TabRole(ETabRole::NomadTab); }));
	const TSharedPtr<SDockTab> Wizard = Tabs->TryInvokeTab(FTabId(TabName));
	Tabs->TryInvokeTab(FTabId("Other"));
	ASSERT_FALSE(Wizard->IsForeground());
	EXPECT_TRUE(Tabs->TryInvokeTab(FTabId(TabName)) == Wizard);
	EXPECT_TRUE(Wizard->IsForeground());
	EXPECT_EQ(Tabs->GetOpenTabs().Num(), 2);
	Tabs->FindExistingLiveTab(FTabId("Other"))->RequestCloseTab();
	Tabs->UnregisterNomadTabSpawner("Other");
}

TEST(FModuleWithoutSlate, RegistersItsStyleWithoutReloadingTextures)
{
	FStandaloneEditor Editor;
	std::string Error;
	ASSERT_TRUE(Editor.Start(FStandaloneEditorOptions(), Error)) << Error;
	FModuleManager::Get().UnloadModule("QuillonEditor");
	FSlateApplication::Shutdown();
	EXPECT_NE(FModuleManager::Get().LoadModule("QuillonEditor"), nullptr);
	EXPECT_TRUE(HasStyle());
	FSlateApplication::Create();
	FSlateApplication::Get().InitializeRenderer(MakeShared<FSlateNullRenderer>());
}
