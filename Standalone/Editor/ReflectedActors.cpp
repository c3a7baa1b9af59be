// Copyright Corvane. MIT License.
#include "ReflectedActors.h"

#include "Editor.h"
#include "EditorAssets.h"
#include "EditorViews.h"
#include "EngineText.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Kismet/GameplayStatics.h"
#include "UObject/UnrealType.h"

namespace
{
	UClass* FindPluginClass(const TCHAR* Name)
	{
		return FindObject<UClass>(ANY_PACKAGE, Name);
	}

	template <typename PropertyType>
	const PropertyType* GetProperty(const UStruct* Struct, const ANSICHAR* Name)
	{
		const PropertyType* Property = CastField<PropertyType>(Struct->FindPropertyByName(FName(Name)));
		checkf(
			Property != nullptr, TEXT("%s has no property %s of the agreed kind"), *Struct->GetName(), *FString(Name));
		return Property;
	}

	const FArrayProperty* GetSendersProperty(const AActor* Manager)
	{
		return GetProperty<FArrayProperty>(Manager->GetClass(), "SpoutSenders");
	}

	FScriptArrayHelper GetSenders(const AActor* Manager)
	{
		const FArrayProperty* Property = GetSendersProperty(Manager);
		return FScriptArrayHelper(Property, Property->ContainerPtrToValuePtr<void>(Manager));
	}

	std::string GetText(const UStruct* Struct, const ANSICHAR* Name, const void* Container)
	{
		return FEngineText::ForDisplay(
			GetProperty<FStrProperty>(Struct, Name)->GetPropertyValue_InContainer(Container));
	}
}

TArray<AActor*> FReflectedActors::FindSenderManagers()
{
	TArray<AActor*> Managers;
	UGameplayStatics::GetAllActorsOfClass(
		FEditorViews::GetLevelWorld(), FindPluginClass(TEXT("ZAVSpoutSenderManager")), Managers);
	return Managers;
}

int32 FReflectedActors::CountSenders(const AActor* Manager)
{
	return GetSenders(Manager).Num();
}

FCreateReport::FSender FReflectedActors::DescribeSender(const AActor* Manager, int32 Index)
{
	const FStructProperty* Inner = CastField<FStructProperty>(GetSendersProperty(Manager)->Inner);
	check(Inner != nullptr);
	const UScriptStruct* Struct = Inner->Struct;
	const void* Sender = GetSenders(Manager).GetRawPtr(Index);
	const UObject* Target =
		GetProperty<FObjectProperty>(Struct, "RenderTarget")->GetObjectPropertyValue_InContainer(Sender);
	FCreateReport::FSender Description;
	Description.bActive = GetProperty<FBoolProperty>(Struct, "bActive")->GetPropertyValue_InContainer(Sender);
	Description.Name = GetText(Struct, "SpoutSenderName", Sender);
	Description.StandaloneName = GetText(Struct, "StandaloneSenderName", Sender);
	Description.RenderTarget = Target ? FEngineText::ForDisplay(FEditorAssets::GetPath(Target)) : std::string();
	return Description;
}

const AActor* FReflectedActors::FindSelectedCamera()
{
	const USelection* Selection = GEditor->GetSelectedActors();
	const UClass* CameraClass = FindPluginClass(TEXT("ZAVCineCamCapture"));
	const UObject* Selected = Selection->Num() == 1 ? Selection->GetSelectedObject(0) : nullptr;
	return Selected && CameraClass && Selected->IsA(CameraClass) ? static_cast<const AActor*>(Selected) : nullptr;
}

FCreateReport::FCamera FReflectedActors::DescribeCamera(const AActor* Camera)
{
	const FVector Location = Camera->GetActorLocation();
	const FRotator Rotation = Camera->GetActorRotation();
	return {FEngineText::ForDisplay(Camera->GetFName()), {Location.X, Location.Y, Location.Z},
		{Rotation.Pitch, Rotation.Yaw, Rotation.Roll}};
}
