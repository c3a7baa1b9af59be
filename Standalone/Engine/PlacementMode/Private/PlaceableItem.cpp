// Copyright Corvane. MIT License.
#include "IPlacementModeModule.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"

FPlaceableItem::FPlaceableItem(UActorFactory* InFactory, const FAssetData& InAssetData, TOptional<int32> InSortOrder)
	: Factory(InFactory), AssetData(InAssetData), SortOrder(InSortOrder)
{
	const UClass* Class = Cast<UClass>(AssetData.GetAsset());
	const FString Name = AssetData.AssetName.ToString();
	const FString Given = Class ? Class->GetMetaData(TEXT("DisplayName")) : Name;
	DisplayName = FText::FromString(Given.IsEmpty() ? FName::NameToDisplayString(Name, false) : Given);
}
