// Copyright Corvane. MIT License.
#pragma once

#include "DetailCategoryBuilder.h"
#include "DetailRow.h"

/** A category: first what layouts add to it, in their order, then the properties that belong to it by declaration. */
class FDetailCategory : public FDetailRow, public IDetailCategoryBuilder
{
public:
	explicit FDetailCategory(FName InName);

	virtual EDetailNodeType GetNodeType() const override { return EDetailNodeType::Category; }

	virtual void GetDefaultProperties(TArray<TSharedRef<IPropertyHandle>>& OutAllProperties, bool bSimpleProperties,
		bool bAdvancedProperties) override;
	using FDetailRow::AddProperty;
	virtual IDetailPropertyRow& AddProperty(
		TSharedPtr<IPropertyHandle> PropertyHandle, EPropertyLocation::Type Location) override;
	virtual IDetailGroup& AddGroup(FName Name, const FText& Title, bool bForAdvanced, bool bStartExpanded) override
	{
		return AddGroupRow(Name, Title, bForAdvanced, bStartExpanded);
	}

	/** The first name that is not empty counts, and the last priority. */
	void Edit(const FText& NewDisplayName, ECategoryPriority::Type NewPriority);
	/** Makes the rows that nobody added or hid, and brings all into their order. */
	void AddDefaultRows();
	bool HasRows() const;

	TArray<TSharedRef<FPropertyNode>> DefaultProperties;
	ECategoryPriority::Type Priority = ECategoryPriority::Default;

private:
	bool bNamed = false;
};
