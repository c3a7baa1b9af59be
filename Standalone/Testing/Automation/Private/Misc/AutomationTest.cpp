// Copyright Corvane. MIT License.
#include <cmath>

#include "Misc/AutomationTest.h"

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

FAutomationTestBase::FAutomationTestBase(const FString& InName, const bool) : TestName(InName)
{
	FAutomationTestFramework::Get().RegisterAutomationTest(this);
}

FAutomationTestBase::~FAutomationTestBase()
{
	FAutomationTestFramework::Get().UnregisterAutomationTest(this);
}

void FAutomationTestBase::AddError(const FString& InError, int32)
{
	ExecutionInfo.Errors.Add(InError);
}

void FAutomationTestBase::AddInfo(const FString& InLogItem, int32, bool)
{
	ExecutionInfo.Infos.Add(InLogItem);
}

bool FAutomationTestBase::Expect(bool bHolds, const FString& What, const TCHAR* Property)
{
	if (!bHolds)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to %s."), *What, Property));
	}
	return bHolds;
}

bool FAutomationTestBase::TestTrue(const FString& What, bool Value)
{
	return Expect(Value, What, TEXT("be true"));
}

bool FAutomationTestBase::TestFalse(const FString& What, bool Value)
{
	return Expect(!Value, What, TEXT("be false"));
}

bool FAutomationTestBase::TestNull(const FString& What, const void* Pointer)
{
	return Expect(Pointer == nullptr, What, TEXT("be null"));
}

bool FAutomationTestBase::TestNotNull(const FString& What, const void* Pointer)
{
	return Expect(Pointer != nullptr, What, TEXT("be not null"));
}

bool FAutomationTestBase::TestEqual(const FString& What, int32 Actual, int32 Expected)
{
	return Expect(Actual == Expected, What, *FString::Printf(TEXT("be %d, but it was %d"), Expected, Actual));
}

bool FAutomationTestBase::TestEqual(const FString& What, float Actual, float Expected, float Tolerance)
{
	return Expect(std::fabs(Actual - Expected) <= Tolerance, What,
		*FString::Printf(TEXT("be %g within %g, but it was %g"), Expected, Tolerance, Actual));
}

bool FAutomationTestBase::TestEqual(const FString& What, const TCHAR* Actual, const TCHAR* Expected)
{
	return TestEqual(What, FString(Actual), FString(Expected));
}

bool FAutomationTestBase::TestEqual(const FString& What, const FString& Actual, const TCHAR* Expected)
{
	return TestEqual(What, Actual, FString(Expected));
}

bool FAutomationTestBase::TestEqual(const FString& What, const FString& Actual, const FString& Expected)
{
	return Expect(
		Actual.Equals(Expected), What, *FString::Printf(TEXT("be \"%s\", but it was \"%s\""), *Expected, *Actual));
}

FAutomationTestExecutionInfo FAutomationTestBase::RunCase(int32 CaseIndex)
{
	ExecutionInfo = FAutomationTestExecutionInfo();
	RunTest(CaseIndex);
	return ExecutionInfo;
}

/** A Describe, or the whole spec, which has neither description nor outer group. */
struct FAutomationSpecBase::FGroup
{
	FString Description;
	TSharedPtr<FGroup> Outer;
	TArray<TFunction<void()>> BeforeEach;
	TArray<TFunction<void()>> AfterEach;
};

struct FAutomationSpecBase::FCase
{
	FString Sentence;
	TSharedPtr<FGroup> Group;
	TFunction<void()> Body;
	int32 SourceLine = 0;
};

FAutomationSpecBase::FAutomationSpecBase(const FString& InName, const bool bInComplexTask)
	: FAutomationTestBase(InName, bInComplexTask)
{}

FAutomationSpecBase::~FAutomationSpecBase() = default;

void FAutomationSpecBase::GetTests(TArray<FAutomationTestInfo>& OutCases)
{
	EnsureDefinitions();
	for (int32 Index = 0; Index < Cases.Num(); ++Index)
	{
		FAutomationTestInfo Info;
		Info.SuiteName = GetBeautifiedTestName();
		Info.CaseName = Cases[Index]->Sentence;
		Info.SourceFile = GetTestSourceFileName();
		Info.SourceLine = Cases[Index]->SourceLine;
		Info.Test = this;
		Info.CaseIndex = Index;
		OutCases.Add(Info);
	}
}

void FAutomationSpecBase::EnsureDefinitions()
{
	if (!bHasBeenDefined)
	{
		bHasBeenDefined = true;
		CurrentGroup = MakeShared<FGroup>();
		Define();
		CurrentGroup.Reset();
	}
}

void FAutomationSpecBase::Describe(const FString& InDescription, TFunction<void()> DoWork)
{
	check(CurrentGroup.IsValid());
	const TSharedPtr<FGroup> Outer = CurrentGroup;
	CurrentGroup = MakeShared<FGroup>();
	CurrentGroup->Description = InDescription;
	CurrentGroup->Outer = Outer;
	DoWork();
	CurrentGroup = Outer;
}

void FAutomationSpecBase::It(const FString& InDescription, TFunction<void()> DoWork, int32 SourceLine)
{
	check(CurrentGroup.IsValid());
	const TSharedRef<FCase> Case = MakeShared<FCase>();
	Case->Sentence = InDescription;
	for (const FGroup* Group = CurrentGroup.Get(); Group->Outer.IsValid(); Group = Group->Outer.Get())
	{
		Case->Sentence = Group->Description + TEXT(" ") + Case->Sentence;
	}
	Case->Group = CurrentGroup;
	Case->Body = MoveTemp(DoWork);
	Case->SourceLine = SourceLine;
	Cases.Add(Case);
}

void FAutomationSpecBase::BeforeEach(TFunction<void()> DoWork)
{
	check(CurrentGroup.IsValid());
	CurrentGroup->BeforeEach.Add(DoWork);
}

void FAutomationSpecBase::AfterEach(TFunction<void()> DoWork)
{
	check(CurrentGroup.IsValid());
	CurrentGroup->AfterEach.Add(DoWork);
}

void FAutomationSpecBase::RunTest(int32 CaseIndex)
{
	EnsureDefinitions();
	const TSharedRef<FCase> Case = Cases[CaseIndex];
	TArray<const FGroup*> InnerToOuter;
	for (const FGroup* Group = Case->Group.Get(); Group != nullptr; Group = Group->Outer.Get())
	{
		InnerToOuter.Add(Group);
	}
	for (int32 Index = InnerToOuter.Num() - 1; Index >= 0; --Index)
	{
		for (const TFunction<void()>& Work : InnerToOuter[Index]->BeforeEach)
		{
			Work();
		}
	}
	Case->Body();
	for (const FGroup* Group : InnerToOuter)
	{
		for (const TFunction<void()>& Work : Group->AfterEach)
		{
			Work();
		}
	}
}

FAutomationTestFramework& FAutomationTestFramework::Get()
{
	// Never destroyed: tests unregister while the process ends.
	static FAutomationTestFramework* const Framework = new FAutomationTestFramework;
	return *Framework;
}

void FAutomationTestFramework::RegisterAutomationTest(FAutomationTestBase* InTest)
{
	Tests.Add(InTest);
}

void FAutomationTestFramework::UnregisterAutomationTest(FAutomationTestBase* InTest)
{
	Tests.Remove(InTest);
}

void FAutomationTestFramework::GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const
{
	for (FAutomationTestBase* const Test : Tests)
	{
		Test->GetTests(TestInfo);
	}
}
