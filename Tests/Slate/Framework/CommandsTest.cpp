// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestCommands.h"

namespace
{
	/** Leaves no commands behind. */
	class FCommandsTest : public ::testing::Test
	{
	protected:
		virtual ~FCommandsTest() override { FTestCommands::Unregister(); }

		static TArray<TSharedPtr<FBindingContext>> GetContexts()
		{
			TArray<TSharedPtr<FBindingContext>> Contexts;
			FInputBindingManager::Get().GetKnownInputContexts(Contexts);
			return Contexts;
		}
		static TArray<TSharedPtr<FUICommandInfo>> GetCommands(const FName Context)
		{
			TArray<TSharedPtr<FUICommandInfo>> Commands;
			FInputBindingManager::Get().GetCommandInfosFromContext(Context, Commands);
			return Commands;
		}
		static TSharedRef<FBindingContext> MakeContext(const FName Name)
		{
			return MakeShared<FBindingContext>(Name, FText(), NAME_None, NAME_None);
		}
		static TSharedPtr<FUICommandInfo> MakeCommand(const TSharedRef<FBindingContext>& Context, const FName Name)
		{
			TSharedPtr<FUICommandInfo> Command;
			FUICommandInfo::MakeCommandInfo(Context, Command, Name, FText(), FText(), FSlateIcon(),
				EUserInterfaceActionType::Button, FInputChord());
			return Command;
		}
	};

	typedef FCommandsTest FCommandsDeathTest;
}

TEST_F(FCommandsTest, AreThereFromRegisterToUnregister)
{
	EXPECT_FALSE(FTestCommands::IsRegistered());
	FTestCommands::Register();
	EXPECT_TRUE(FTestCommands::IsRegistered());
	EXPECT_TRUE(FTestCommands::Get().Open.IsValid());
	FTestCommands::Unregister();
	EXPECT_FALSE(FTestCommands::IsRegistered());
	FTestCommands::Unregister();
}

TEST_F(FCommandsTest, StayTheFirstInstanceWhenRegisteredAgain)
{
	FTestCommands::Register();
	const FTestCommands* First = &FTestCommands::Get();
	const TSharedPtr<FUICommandInfo> FirstOpen = First->Open;
	FTestCommands::Register();
	EXPECT_EQ(&FTestCommands::Get(), First);
	EXPECT_TRUE(FTestCommands::Get().Open == FirstOpen);
	EXPECT_EQ(GetCommands("TestCommands").Num(), 3);
}

TEST_F(FCommandsTest, AreNewOnesWhenRegisteredAfterUnregistering)
{
	FTestCommands::Register();
	const TSharedPtr<FUICommandInfo> FormerOpen = FTestCommands::Get().Open;
	FTestCommands::Unregister();
	FTestCommands::Register();
	EXPECT_FALSE(FTestCommands::Get().Open == FormerOpen);
	EXPECT_TRUE(FormerOpen->GetLabel().IdenticalTo(FTestCommands::Get().Open->GetLabel()));
}

TEST_F(FCommandsDeathTest, AreFatalToAskForWhileNotRegistered)
{
	EXPECT_EXIT(FTestCommands::Get(), ::testing::ExitedWithCode(3), "commands are not registered");
	FTestCommands::Register();
	FTestCommands::Unregister();
	EXPECT_EXIT(FTestCommands::Get(), ::testing::ExitedWithCode(3), "commands are not registered");
}

TEST_F(FCommandsTest, DieWithTheirContextUnlessSomebodyKeepsThem)
{
	FTestCommands::Register();
	const TWeakPtr<FUICommandInfo> Open = FTestCommands::Get().Open;
	const TSharedPtr<FUICommandInfo> Kept = FTestCommands::Get().Light;
	FTestCommands::Unregister();
	EXPECT_FALSE(Open.IsValid());
	EXPECT_EQ(Kept->GetCommandName(), FName("Light"));
}

TEST_F(FCommandsTest, HaveTheirContextsNameDescriptionParentAndStyle)
{
	FTestCommands::Register();
	const FTestCommands& Context = FTestCommands::Get();
	EXPECT_TRUE(Context.GetContextName().ToString().Equals(TEXT("TestCommands")));
	EXPECT_TRUE(Context.GetContextDesc().IdenticalTo(NSLOCTEXT("Contexts", "Test", "Test Commands")));
	EXPECT_EQ(Context.GetContextParent(), FName("ParentCommands"));
	EXPECT_EQ(Context.GetStyleSetName(), FName("TestStyle"));
}

TEST_F(FCommandsTest, AreWhatTheyWereMadeAs)
{
	FTestCommands::Register();
	const FUICommandInfo& Light = *FTestCommands::Get().Light;
	EXPECT_TRUE(Light.GetCommandName().ToString().Equals(TEXT("Light")));
	EXPECT_TRUE(Light.GetLabel().IdenticalTo(NSLOCTEXT("Test", "Light", "Light")));
	EXPECT_TRUE(Light.GetDescription().IdenticalTo(NSLOCTEXT("Test", "Light_ToolTip", "Light on/off")));
	EXPECT_FALSE(Light.GetIcon().IsSet());
	EXPECT_EQ(Light.GetUserInterfaceType(), EUserInterfaceActionType::ToggleButton);
	const FUICommandInfo& Keyed = *FTestCommands::Get().Keyed;
	EXPECT_EQ(Keyed.GetUserInterfaceType(), EUserInterfaceActionType::Check);
	EXPECT_EQ(Keyed.GetIcon().GetStyleName(), FName("Test.Keyed"));
}

TEST_F(FCommandsTest, TellWhetherTheyHaveKeys)
{
	FTestCommands::Register();
	const FUICommandInfo& Open = *FTestCommands::Get().Open;
	EXPECT_FALSE(Open.GetDefaultChord(EMultipleKeyBindingIndex::Primary).IsValidChord());
	EXPECT_FALSE(Open.GetDefaultChord(EMultipleKeyBindingIndex::Secondary).IsValidChord());
	const FUICommandInfo& Keyed = *FTestCommands::Get().Keyed;
	EXPECT_TRUE(Keyed.GetDefaultChord(EMultipleKeyBindingIndex::Primary).IsValidChord());
	EXPECT_TRUE(Keyed.GetDefaultChord(EMultipleKeyBindingIndex::Primary).Key == EKeys::A);
	EXPECT_TRUE(Keyed.GetDefaultChord(EMultipleKeyBindingIndex::Secondary).Key == EKeys::V);
}

TEST_F(FCommandsTest, AreFoundByContextAndName)
{
	FTestCommands::Register();
	const FTestCommands& Commands = FTestCommands::Get();
	const FInputBindingManager& Manager = FInputBindingManager::Get();
	EXPECT_TRUE(Manager.FindCommandInContext("testcommands", "LIGHT") == Commands.Light);
	EXPECT_FALSE(Manager.FindCommandInContext("TestCommands", "Dark").IsValid());
	EXPECT_FALSE(Manager.FindCommandInContext("OtherCommands", "Light").IsValid());
	FTestCommands::Unregister();
	EXPECT_FALSE(Manager.FindCommandInContext("TestCommands", "Light").IsValid());
}

TEST_F(FCommandsTest, AreListedInTheOrderInWhichTheyWereMade)
{
	FTestCommands::Register();
	const FTestCommands& Commands = FTestCommands::Get();
	const TArray<TSharedPtr<FUICommandInfo>> Expected{Commands.Open, Commands.Light, Commands.Keyed};
	EXPECT_TRUE(GetCommands("TestCommands") == Expected);
	EXPECT_EQ(GetCommands("OtherCommands").Num(), 0);
	FTestCommands::Unregister();
	EXPECT_EQ(GetCommands("TestCommands").Num(), 0);
}

TEST_F(FCommandsTest, MakeTheirContextKnownUntilItIsRemoved)
{
	const TSharedRef<FBindingContext> Other = MakeContext("OtherCommands");
	EXPECT_EQ(GetContexts().Num(), 0);
	MakeCommand(Other, "Close");
	FTestCommands::Register();
	const TArray<TSharedPtr<FBindingContext>> Contexts = GetContexts();
	ASSERT_EQ(Contexts.Num(), 2);
	EXPECT_TRUE(Contexts[0] == Other);
	EXPECT_EQ(Contexts[1].Get(), &FTestCommands::Get());
	FInputBindingManager::Get().RemoveContextByName("othercommands");
	FInputBindingManager::Get().RemoveContextByName("OtherCommands");
	ASSERT_EQ(GetContexts().Num(), 1);
	FTestCommands::Unregister();
	EXPECT_EQ(GetContexts().Num(), 0);
}

TEST_F(FCommandsTest, OfOneNameMayBeInTwoContexts)
{
	FTestCommands::Register();
	const TSharedPtr<FUICommandInfo> Open = MakeCommand(MakeContext("OtherCommands"), "Open");
	EXPECT_TRUE(FInputBindingManager::Get().FindCommandInContext("OtherCommands", "Open") == Open);
	EXPECT_TRUE(FInputBindingManager::Get().FindCommandInContext("TestCommands", "Open") == FTestCommands::Get().Open);
	FInputBindingManager::Get().RemoveContextByName("OtherCommands");
}

TEST_F(FCommandsDeathTest, OfOneNameAreFatalInOneContext)
{
	const TSharedRef<FBindingContext> Other = MakeContext("OtherCommands");
	EXPECT_EXIT(
		{
			MakeCommand(Other, "Close");
			MakeCommand(Other, "CLOSE");
		},
		::testing::ExitedWithCode(3), "'CLOSE' of context 'OtherCommands' exists");
}

TEST_F(FCommandsDeathTest, OfTwoContextsOfOneNameAreFatal)
{
	EXPECT_EXIT(
		{
			FTestCommands::Register();
			MakeCommand(MakeContext("TESTCOMMANDS"), "Close");
		},
		::testing::ExitedWithCode(3), "two command contexts 'TESTCOMMANDS'");
}
