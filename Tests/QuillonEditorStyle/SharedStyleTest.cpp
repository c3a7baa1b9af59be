// Copyright Corvane. MIT License.
#include <cstdlib>
#include <gtest/gtest.h>

#include "StandaloneEditor.h"

#include "EditorMenus.h"
#include "Framework/Docking/TabManager.h"
#include "LevelToolBar.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Interfaces/IPluginManager.h"
#include "QuillonEditor.h"
#include "QuillonEditorCommands.h"
#include "QuillonEditorStyle.h"
#include "Standalone/EnsureReports.h"
#include "Standalone/ToolMenusStartup.h"
#include "Styling/SlateStyleRegistry.h"

// What happens when somebody else still shares the style set while it is shut down. Nothing hands the set out, so
// nobody can be brought to share it from outside: this program has the class's own objects linked in and reaches its
// private member.

namespace
{
	struct FStyleInstance
	{
		typedef TSharedPtr<FSlateStyleSet>* FPointer;
		friend FPointer GetMember(FStyleInstance);
	};

	/** An explicit instantiation may name private members. */
	template <typename TagType, typename TagType::FPointer Member>
	struct TMemberAccess
	{
		friend typename TagType::FPointer GetMember(TagType) { return Member; }
	};
	template struct TMemberAccess<FStyleInstance, &FQuillonEditorStyle::StyleInstance>;

	struct FPluginCommands
	{
		typedef TSharedPtr<FUICommandList> FQuillonEditorModule::*FPointer;
		friend FPointer GetMember(FPluginCommands);
	};
	template struct TMemberAccess<FPluginCommands, &FQuillonEditorModule::PluginCommands>;
}

/** An editor without the plugin's modules: the test initialises the style set itself. */
class FSharedStyle : public ::testing::Test
{
protected:
	FSharedStyle()
	{
		FStandaloneEditorOptions Options;
		Options.bLoadPlugin = false;
		std::string Error;
		const bool bStarted = Editor.Start(Options, Error);
		EXPECT_TRUE(bStarted) << Error;
		IPluginManager::Get().AddPluginSearchPath(UTF8_TO_TCHAR(QUILLON_PROJECT_DIR), true);
		FQuillonEditorStyle::Initialize();
		Handle = FEnsureReports::OnReported().AddLambda(
			[this](const FEnsureReport& Report)
			{
				++Reports;
				LastReport = Report;
			});
	}
	~FSharedStyle() override { FEnsureReports::OnReported().Remove(Handle); }

	FStandaloneEditor Editor;
	FDelegateHandle Handle;
	int Reports = 0;
	FEnsureReport LastReport;
};

/** In a process of its own: a call site reports once. */
typedef FSharedStyle FModuleShutDownDeathTest;

TEST_F(FModuleShutDownDeathTest, UnregistersAllElseBeforeItReleasesTheStyle)
{
	FQuillonEditorStyle::Shutdown();
	EXPECT_EXIT(
		{
			FQuillonEditorModule Module;
			Module.StartupModule();
			const TSharedPtr<FSlateStyleSet> Shared = *GetMember(FStyleInstance());
			int Status = 1;
			FEnsureReports::OnReported().AddLambda(
				[&Status](const FEnsureReport&)
				{
					const bool bEarly = FGlobalTabmanager::Get()->HasTabSpawner("CineStreamWizard") ||
						FQuillonEditorCommands::IsRegistered() ||
						FToolMenusStartup::GetOwnerCount(FLevelToolBar::GetOwner()) > 0;
					Status = bEarly ? 2 : 0;
				});
			Module.ShutdownModule();
			std::_Exit(Status);
		},
		::testing::ExitedWithCode(0), "StyleInstance.IsUnique\\(\\)");
}

TEST_F(FSharedStyle, GoesWithMenusThatKeepTheCommandListOfTheirRegistration)
{
	FQuillonEditorStyle::Shutdown();
	FQuillonEditorModule Module;
	Module.StartupModule();
	(Module.*GetMember(FPluginCommands())).Reset();
	std::string Error;
	const TSharedPtr<const FMultiBox> Menu = FEditorMenus::Open(TEXT("Corvane"), Error);
	ASSERT_TRUE(Menu.IsValid()) << Error;
	EXPECT_TRUE(Menu->Sections[0].Blocks[0]->CanExecute());
	Module.ShutdownModule();
}

TEST_F(FSharedStyle, GoesBeforeTheCommandListOfTheModule)
{
	FQuillonEditorStyle::Shutdown();
	FQuillonEditorModule Module;
	Module.StartupModule();
	Module.ShutdownModule();
	EXPECT_TRUE((Module.*GetMember(FPluginCommands())).IsValid());
}

TEST_F(FSharedStyle, IsReportedAtShutDownWithTheExpressionAndTheFileAndReleasedAnyway)
{
	const TSharedPtr<FSlateStyleSet> Shared = *GetMember(FStyleInstance());
	FQuillonEditorStyle::Shutdown();
	ASSERT_EQ(Reports, 1);
	EXPECT_TRUE(LastReport.Expression.Equals(TEXT("StyleInstance.IsUnique()"))) << TCHAR_TO_UTF8(LastReport.Expression);
	EXPECT_TRUE(
		LastReport.File.StartsWith(TEXT("Source/QuillonEditor/Private/QuillonEditorStyle"), ESearchCase::CaseSensitive))
		<< TCHAR_TO_UTF8(LastReport.File);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("QuillonEditorStyle"), nullptr);
	EXPECT_TRUE(Shared.IsUnique());
}

TEST_F(FSharedStyle, IsNotReportedWhenNobodySharesIt)
{
	FQuillonEditorStyle::Shutdown();
	EXPECT_EQ(Reports, 0);
	EXPECT_FALSE(GetMember(FStyleInstance())->IsValid());
}

TEST_F(FSharedStyle, IsMadeAnewAfterItsShutDown)
{
	FQuillonEditorStyle::Shutdown();
	FQuillonEditorStyle::Initialize();
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle("QuillonEditorStyle"), &FQuillonEditorStyle::Get());
	FQuillonEditorStyle::Shutdown();
}
