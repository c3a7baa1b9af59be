// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "IPlacementModeModule.h"
#include "Misc/AutomationTest.h"
#include "UObject/Class.h"

#include "WidgetUser.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FQuillonEditorPlacementSpec, "Quillon.Placement",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	const FPlacementCategoryInfo* FindCategory() const
	{
		return IPlacementModeModule::Get().GetRegisteredPlacementCategory("Corvane");
	}
END_DEFINE_SPEC(FQuillonEditorPlacementSpec)

void FQuillonEditorPlacementSpec::Define()
{
	Describe("The placement category",
		[this]()
		{
			It("should be registered with its settings",
				[this]()
				{
					const FPlacementCategoryInfo* Category = FindCategory();
					if (!TestTrue("registered", Category != nullptr))
					{
						return;
					}
					TestEqual("name", DescribeText(Category->DisplayName),
						FString(TEXT("FQuillonEditorModule,CorvaneCategoryName,Corvane")));
					TestTrue("handle", Category->UniqueHandle.ToString().Equals(TEXT("Corvane")));
					TestTrue("tag", Category->TagMetaData.Equals(TEXT("PMCorvane")));
					TestEqual("order", Category->SortOrder, 25);
					TestTrue("sortable", Category->bSortable);
					TestFalse("generator", static_cast<bool>(Category->CustomGenerator));
				});

			It("should hold the three actors, each without factory and order of its own",
				[this]()
				{
					TArray<TSharedPtr<FPlaceableItem>> Items;
					IPlacementModeModule::Get().GetItemsForCategory("Corvane", Items);
					FString Classes;
					for (const TSharedPtr<FPlaceableItem>& Item : Items)
					{
						TestTrue("factory", Item->Factory == nullptr);
						TestFalse("order", Item->SortOrder.IsSet());
						Classes += Item->AssetData.AssetName.ToString() + TEXT(" ");
					}
					TestEqual("classes", Classes,
						FString(TEXT("ZAVCineCamCapture ZAVSpoutSenderManager ZAVSpoutReceiverManager ")));
				});
		});
}

#endif
