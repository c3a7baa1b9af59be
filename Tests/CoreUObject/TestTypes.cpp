// Copyright Corvane. MIT License.
#include "TestTypes.h"

#include "OddTypes.h"
#include "UObject/WeakObjectPtrTemplates.h"

int32 UTestNode::NumDestroyed = 0;
int32 UTestNode::NumDyingButHeld = 0;
TArray<FString> UTestNode::DestroyedNames;
bool UTestHasty::bMisbehave = false;

UTestNode::~UTestNode()
{
	++NumDestroyed;
}

void UTestNode::BeginDestroy()
{
	NumDyingButHeld += TWeakObjectPtr<UTestNode>(this).Get(true) ? 1 : 0;
	// The neighbour may die too, but it is still there.
	DestroyedNames.Add(GetName() + (Next ? TEXT(">") + Next->GetName() : FString()));
}

void UTestNativeHolder::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObjects(static_cast<UTestNativeHolder*>(InThis)->Held);
}

UTestPart::UTestPart()
{
	Inner = CreateDefaultSubobject<UTestInnerPart>(TEXT("Inner"));
	Inner->Depth = 2;
	Inner->Whole = this;
}

void UTestPart::PostInitProperties()
{
	SizeWhenReady = Size;
}

UTestOwner::UTestOwner()
{
	Part = CreateDefaultSubobject<UTestPart>(TEXT("Part"));
	Part->Size = 10;
	SamePart = Part;
	Secret = CreateDefaultSubobject<UTestPart>(TEXT("Secret"), true);
	AllParts = {Part, Secret};
	CreateDefaultSubobject<UTestPart>(TEXT("Unreferenced"));
}

UTestDerivedOwner::UTestDerivedOwner()
{
	Part->Size = 20;
}

UTestHasty::UTestHasty()
{
	if (bMisbehave)
	{
		NewObject<UTestNode>(this);
	}
}

int32 AOddActor::Twice(int32 Value, const TArray<FString>& Names)
{
	return Value * 2 + Names.Num();
}
