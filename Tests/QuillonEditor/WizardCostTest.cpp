// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "AllocationCount.h"

#include "Kismet/GameplayStatics.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "ZAVSpoutSenderManager.h"

// What a keystroke may take from memory: each one checks the name against all entries.

#ifndef __SANITIZE_ADDRESS__
class FWizardKeystroke : public FWizardFixture, public ::testing::WithParamInterface<int>
{
protected:
	void PlaceManager(const TCHAR* Kind)
	{
		AZAVSpoutSenderManager* Manager = World(0)->SpawnActor<AZAVSpoutSenderManager>();
		for (int Index = 0; Index < GetParam(); ++Index)
		{
			FZAVSpoutSenderInterface Sender;
			Sender.SpoutSenderName = FString::Printf(TEXT("A name too long to be kept in place %s%d"), Kind, Index);
			Sender.StandaloneSenderName = Sender.SpoutSenderName + TEXT("_Standalone");
			Manager->SpoutSenders.Add(Sender);
		}
	}
	int64 CountForArrayOfManagers() const
	{
		const int64 Before = FAllocationCount::Get();
		TArray<AActor*> Managers;
		UGameplayStatics::GetAllActorsOfClass(World(0), AZAVSpoutSenderManager::StaticClass(), Managers);
		return FAllocationCount::Get() - Before;
	}
};

TEST_P(FWizardKeystroke, TakesNoMemoryButForTheArrayOfManagers)
{
	PlaceManager(TEXT("a"));
	PlaceManager(TEXT("b"));
	OpenWizard();
	const FOnTextChanged& OnTextChanged = FWidgetFinder(Wizard.ToSharedRef()).GetEditBoxes()[0]->GetOnTextChanged();
	const FText Typed = FText::FromString(TEXT("A name too long to be kept in place c"));
	OnTextChanged.ExecuteIfBound(Typed);
	const int64 Before = FAllocationCount::Get();
	OnTextChanged.ExecuteIfBound(Typed);
	const int64 Taken = FAllocationCount::Get() - Before;
	EXPECT_EQ(Taken, CountForArrayOfManagers());
	EXPECT_GT(CountForArrayOfManagers(), 0) << "allocations are counted";
}

INSTANTIATE_TEST_SUITE_P(Entries, FWizardKeystroke, ::testing::Values(0, 10, 1000));
#endif
