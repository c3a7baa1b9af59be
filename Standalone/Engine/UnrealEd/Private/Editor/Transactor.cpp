// Copyright Corvane. MIT License.
#include "Editor/Transactor.h"

#include "Editor/Transaction.h"

namespace
{
	const int32 MaxSteps = 10000;
}

int32 UTransactor::Begin(const FText& Description)
{
	if (OpenCount == 0)
	{
		Open = TSharedPtr<FTransaction>(new FTransaction(Description));
		GUndo = Open.Get();
	}
	return OpenCount++;
}

int32 UTransactor::End()
{
	const int32 WasOpen = OpenCount;
	if (OpenCount > 0 && --OpenCount == 0)
	{
		const TSharedPtr<FTransaction> Step = Open;
		Open.Reset();
		GUndo = nullptr;
		if (Step->Finish())
		{
			ForgetUndone();
			Steps.Add(Step);
			Steps.RemoveAt(0, Steps.Num() > MaxSteps ? 1 : 0);
		}
	}
	return WasOpen;
}

void UTransactor::Reset(const FText& /*Reason*/)
{
	ForgetUndone();
	Steps.Empty();
	StopRecording();
}

void UTransactor::StopRecording()
{
	if (OpenCount > 0)
	{
		GUndo = nullptr;
		Open.Reset();
		OpenCount = 0;
	}
}

void UTransactor::ForgetUndone()
{
	const int32 NumLeft = Steps.Num() - NumUndone;
	for (int32 Index = NumLeft; Index < Steps.Num(); ++Index)
	{
		Steps[Index]->Forget();
	}
	Steps.SetNum(NumLeft);
	NumUndone = 0;
}

FTransactionContext UTransactor::GetUndoContext() const
{
	return CanUndo() ? FTransactionContext{Steps.Last(NumUndone)->Title} : FTransactionContext();
}

FTransactionContext UTransactor::GetRedoContext() const
{
	return CanRedo() ? FTransactionContext{Steps.Last(NumUndone - 1)->Title} : FTransactionContext();
}

bool UTransactor::Undo(bool bCanRedo)
{
	if (!CanUndo())
	{
		return false;
	}
	// Kept, and counted first: whoever is told may make another step, which forgets this one.
	const TSharedPtr<FTransaction> Step = Steps.Last(NumUndone++);
	Step->Apply(true);
	if (!bCanRedo)
	{
		ForgetUndone();
	}
	return true;
}

bool UTransactor::Redo()
{
	if (!CanRedo())
	{
		return false;
	}
	const TSharedPtr<FTransaction> Step = Steps.Last(--NumUndone);
	Step->Apply(false);
	return true;
}

void UTransactor::BeginDestroy()
{
	StopRecording();
	Super::BeginDestroy();
}

void UTransactor::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UTransactor* This = static_cast<UTransactor*>(InThis);
	for (const TSharedPtr<FTransaction>& Step : This->Steps)
	{
		Step->AddReferencedObjects(Collector);
	}
	if (This->Open)
	{
		This->Open->AddReferencedObjects(Collector);
	}
	Super::AddReferencedObjects(InThis, Collector);
}
