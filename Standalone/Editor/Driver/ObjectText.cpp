// Copyright Corvane. MIT License.
#include "Driver/ObjectText.h"

#include "EditorAssets.h"
#include "EditorViews.h"
#include "EngineText.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Kismet/GameplayStatics.h"
#include "UObject/Package.h"

namespace
{
	TArray<AActor*> GetActors()
	{
		TArray<AActor*> Actors;
		UGameplayStatics::GetAllActorsOfClass(FEditorViews::GetLevelWorld(), AActor::StaticClass(), Actors);
		return Actors;
	}
}

FAnswer FObjectText::Describe(const UObject* Object)
{
	if (!Object)
	{
		return nullptr;
	}
	if (Object->IsA<AActor>())
	{
		return FEngineText::ForDisplay(Object->GetFName());
	}
	const bool bIsAsset = Object->GetOuter() == Object->GetOutermost();
	return FEngineText::ForDisplay(bIsAsset ? FEditorAssets::GetPath(Object) : Object->GetPathName());
}

UObject* FObjectText::Find(const FString& Text)
{
	for (UObject* Asset : FEditorAssets::GetAll())
	{
		if (FEditorAssets::GetPath(Asset) == Text)
		{
			return Asset;
		}
	}
	for (AActor* Actor : GetActors())
	{
		if (Actor->GetName() == Text)
		{
			return Actor;
		}
	}
	return nullptr;
}
