// Copyright Corvane. MIT License.
#pragma once

#include "IPropertyRowGenerator.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FDetailLayout;
class FLayoutRegistry;

/** Builds rows, and drops them when nobody can be in the middle of one of their callbacks. */
class FPropertyRowGenerator : public IPropertyRowGenerator, public TSharedFromThis<FPropertyRowGenerator>
{
public:
	explicit FPropertyRowGenerator(const TSharedRef<FLayoutRegistry>& InLayouts);
	virtual ~FPropertyRowGenerator();

	virtual void SetObjects(const TArray<UObject*>& InObjects) override;
	virtual const TArray<TSharedRef<IDetailTreeNode>>& GetRootTreeNodes() const override;
	virtual FOnRowsRefreshed& OnRowsRefreshed() override { return RowsRefreshed; }
	virtual FOnFinishedChangingProperties& OnFinishedChangingProperties() override { return FinishedChanging; }
	virtual bool RefreshIfOutdated() override;

	/** Builds the rows anew and keeps the former ones, as the call may come from one of them. */
	void RebuildFromAnywhere();

private:
	void Rebuild(bool bKeepFormer);
	void DropFormer();

	TSharedRef<FLayoutRegistry> Layouts;
	TArray<TWeakObjectPtr<UObject>> Objects;
	TSharedPtr<FDetailLayout> Rows;
	/** Rows that were built anew, until it is sure that no call of theirs is running. */
	TArray<TSharedPtr<FDetailLayout>> FormerRows;
	TArray<TSharedRef<IDetailTreeNode>> NoNodes;
	FOnRowsRefreshed RowsRefreshed;
	FOnFinishedChangingProperties FinishedChanging;
	bool bRebuilding = false;
	bool bOutdated = false;
};
