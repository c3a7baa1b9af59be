// Copyright Corvane. MIT License.
#include "PropertyRowGenerator.h"

#include "DetailLayout.h"
#include "LayoutRegistry.h"

FPropertyRowGenerator::FPropertyRowGenerator(const TSharedRef<FLayoutRegistry>& InLayouts) : Layouts(InLayouts) {}

FPropertyRowGenerator::~FPropertyRowGenerator() = default;

void FPropertyRowGenerator::SetObjects(const TArray<UObject*>& InObjects)
{
	Objects.Reset();
	for (UObject* Object : InObjects)
	{
		Objects.Add(Object);
	}
	DropFormer();
	Rebuild(false);
}

const TArray<TSharedRef<IDetailTreeNode>>& FPropertyRowGenerator::GetRootTreeNodes() const
{
	return Rows.IsValid() ? Rows->GetRootNodes() : NoNodes;
}

bool FPropertyRowGenerator::RefreshIfOutdated()
{
	DropFormer();
	if (bRebuilding || !(bOutdated || (Rows.IsValid() && Rows->GetEdited().IsOutdated())))
	{
		return false;
	}
	Rebuild(false);
	return true;
}

void FPropertyRowGenerator::RebuildFromAnywhere()
{
	Rebuild(true);
}

void FPropertyRowGenerator::Rebuild(bool bKeepFormer)
{
	bOutdated = bRebuilding;
	if (bRebuilding)
	{
		return;
	}
	// Whoever hears of the new rows may let go of this.
	const TSharedRef<FPropertyRowGenerator> This = SharedThis(this);
	{
		const TGuardValue<bool> Rebuilding(bRebuilding, true);
		if (Rows.IsValid() && (bKeepFormer || Rows->GetEdited().bNotifying))
		{
			FormerRows.Add(Rows);
		}
		// The former layouts go before the new ones come.
		Rows.Reset();
		const TSharedRef<FDetailLayout> NewRows =
			MakeShared<FDetailLayout>(FEditedObjects::Make(Objects, This), Layouts);
		Rows = NewRows;
		NewRows->Build();
	}
	RowsRefreshed.Broadcast();
}

void FPropertyRowGenerator::DropFormer()
{
	if (!bRebuilding)
	{
		FormerRows.RemoveAll([](const TSharedPtr<FDetailLayout>& Former) { return !Former->GetEdited().bNotifying; });
	}
}
