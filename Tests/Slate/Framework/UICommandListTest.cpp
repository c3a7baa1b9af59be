// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Framework/Commands/UICommandList.h"
#include "TestCommands.h"

namespace
{
	/** A list without mappings, and a lamp that commands can switch. */
	class FCommandListTest : public ::testing::Test
	{
	protected:
		FCommandListTest() { FTestCommands::Register(); }
		virtual ~FCommandListTest() override { FTestCommands::Unregister(); }

		static const FTestCommands& Commands() { return FTestCommands::Get(); }
		void Switch() { bIsOn = !bIsOn; }
		bool CanSwitch() const { return bIsPlugged; }
		bool IsOn() const { return bIsOn; }
		FExecuteAction MakeSwitch() { return FExecuteAction::CreateRaw(this, &FCommandListTest::Switch); }
		FCanExecuteAction MakeCanSwitch() { return FCanExecuteAction::CreateRaw(this, &FCommandListTest::CanSwitch); }
		FIsActionChecked MakeIsOn() { return FIsActionChecked::CreateRaw(this, &FCommandListTest::IsOn); }
		bool Execute() const { return List.ExecuteAction(Commands().Light.ToSharedRef()); }
		bool CanExecute() const { return List.CanExecuteAction(Commands().Light.ToSharedRef()); }
		ECheckBoxState GetCheckState() const { return List.GetCheckState(Commands().Light.ToSharedRef()); }

		FUICommandList List;
		bool bIsOn = false;
		bool bIsPlugged = true;
	};

	typedef FCommandListTest FCommandListDeathTest;
}

TEST_F(FCommandListTest, DoesNothingForACommandThatIsNotMapped)
{
	List.MapAction(Commands().Open, MakeSwitch());
	EXPECT_FALSE(List.IsActionMapped(Commands().Light));
	EXPECT_FALSE(List.IsActionMapped(nullptr));
	EXPECT_EQ(List.GetActionForCommand(Commands().Light), nullptr);
	EXPECT_FALSE(CanExecute());
	EXPECT_FALSE(Execute());
	EXPECT_FALSE(bIsOn);
	EXPECT_EQ(GetCheckState(), ECheckBoxState::Unchecked);
}

TEST_F(FCommandListTest, ExecutesAnActionThatNobodyForbids)
{
	List.MapAction(Commands().Light, MakeSwitch());
	EXPECT_TRUE(List.IsActionMapped(Commands().Light));
	EXPECT_TRUE(CanExecute());
	EXPECT_FALSE(bIsOn);
	EXPECT_TRUE(Execute());
	EXPECT_TRUE(bIsOn);
	EXPECT_EQ(GetCheckState(), ECheckBoxState::Unchecked);
}

TEST_F(FCommandListTest, AsksEachTimeWhetherItMayExecute)
{
	List.MapAction(Commands().Light, MakeSwitch(), MakeCanSwitch());
	bIsPlugged = false;
	EXPECT_FALSE(CanExecute());
	EXPECT_FALSE(Execute());
	EXPECT_FALSE(bIsOn);
	bIsPlugged = true;
	EXPECT_TRUE(CanExecute());
	EXPECT_TRUE(Execute());
	EXPECT_TRUE(bIsOn);
}

TEST_F(FCommandListTest, AsksEachTimeWhetherAnActionIsChecked)
{
	List.MapAction(Commands().Light, MakeSwitch(), FCanExecuteAction(), MakeIsOn());
	EXPECT_EQ(GetCheckState(), ECheckBoxState::Unchecked);
	EXPECT_TRUE(Execute());
	EXPECT_EQ(GetCheckState(), ECheckBoxState::Checked);
	EXPECT_TRUE(Execute());
	EXPECT_EQ(GetCheckState(), ECheckBoxState::Unchecked);
}

TEST_F(FCommandListTest, TakesAWholeAction)
{
	FUIAction Action(MakeSwitch());
	Action.GetActionCheckState = FGetActionCheckState::CreateLambda([]() { return ECheckBoxState::Undetermined; });
	List.MapAction(Commands().Light, Action);
	EXPECT_TRUE(Execute());
	EXPECT_TRUE(bIsOn);
	EXPECT_EQ(GetCheckState(), ECheckBoxState::Undetermined);
	ASSERT_NE(List.GetActionForCommand(Commands().Light), nullptr);
	EXPECT_TRUE(List.GetActionForCommand(Commands().Light)->CanExecute());
}

TEST_F(FCommandListTest, SaysSoWhenAnActionDoesNothing)
{
	List.MapAction(Commands().Light, FUIAction());
	EXPECT_TRUE(CanExecute());
	EXPECT_FALSE(Execute());
}

TEST_F(FCommandListTest, PassesThePayloadOn)
{
	TArray<FString> Calls;
	const auto Note = [&Calls](FString What) { Calls.Add(What); };
	List.MapAction(Commands().Light, FExecuteAction::CreateLambda(Note, FString(TEXT("light"))));
	List.MapAction(Commands().Open, FExecuteAction::CreateLambda(Note, FString(TEXT("open"))));
	List.ExecuteAction(Commands().Open.ToSharedRef());
	List.ExecuteAction(Commands().Light.ToSharedRef());
	ASSERT_EQ(Calls.Num(), 2);
	EXPECT_TRUE(Calls[0].Equals(TEXT("open")));
	EXPECT_TRUE(Calls[1].Equals(TEXT("light")));
}

TEST_F(FCommandListTest, KnowsOnlyItsOwnMappings)
{
	FUICommandList Other;
	Other.MapAction(Commands().Light, FExecuteAction());
	List.MapAction(Commands().Light, MakeSwitch());
	EXPECT_FALSE(Other.ExecuteAction(Commands().Light.ToSharedRef()));
	EXPECT_FALSE(bIsOn);
	EXPECT_TRUE(Execute());
	EXPECT_TRUE(bIsOn);
}

TEST_F(FCommandListDeathTest, DiesOfASecondMappingOfOneCommand)
{
	List.MapAction(Commands().Light, MakeSwitch());
	EXPECT_EXIT(List.MapAction(Commands().Light, MakeSwitch(), MakeCanSwitch(), MakeIsOn()),
		::testing::ExitedWithCode(3), "'Light' is mapped already");
}

TEST_F(FCommandListDeathTest, DiesOfNoCommand)
{
	EXPECT_EXIT(List.MapAction(nullptr, MakeSwitch()), ::testing::ExitedWithCode(3), "IsValid");
}
