// Copyright Corvane. MIT License.
#pragma once

#include "DetailsRow.h"

#include <map>
#include <set>
#include <string>
#include <vector>

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

class AActor;
class IPropertyRowGenerator;
class UObject;

/**
 * The details of the selected actors: their own categories, then those of each component that all of them have, in the
 * order of the components' making.
 *
 * The rows are built when they are first looked at after the selection has changed, and built anew only when arrays
 * have got another length or layouts were registered; values are always those of the moment.
 */
class FDetailsPanel
{
public:
	struct FCategory
	{
		FText Name;
		std::vector<FDetailsRow> Rows;
	};

	FDetailsPanel();
	FDetailsPanel(const FDetailsPanel&) = delete;
	FDetailsPanel& operator=(const FDetailsPanel&) = delete;
	~FDetailsPanel();

	/** The rows as they are now; good until the next call of any function. */
	const std::vector<FCategory>& GetCategories();

	/** The rows as they were when last looked at; changes nothing, whatever has become of the objects. Good as above.
	 */
	const std::vector<FCategory>& GetLastCategories() const { return Categories; }
	/** Another number whenever there are other rows. */
	uint32 GetVersion() const { return Version; }

	/** Whether the rows have been looked at since the selection changed. */
	bool IsBuilt() const { return bBuilt && ShowsSelection(); }

	/** Forgets all rows and what holds them; they are built anew when next looked at. */
	void Close();

private:
	void FollowSelection(UObject* Selection);
	/** Not everybody who selects tells of it. */
	bool ShowsSelection() const;
	void Build();
	void AddGenerator(const TArray<UObject*>& Objects);
	void ReadRows();
	void ReadNodes(const TArray<TSharedRef<IDetailTreeNode>>& Nodes, const FDetailsRow* Above, const std::string& Place,
		FCategory& Category);
	void ReadGroup(const TSharedRef<IDetailTreeNode>& Group, const std::string& Place, FCategory& Category);
	/** The same for the same place as long as the selection stays. */
	int32 GetId(const std::string& Place);

	std::vector<TSharedRef<IPropertyRowGenerator>> Generators;
	std::vector<FCategory> Categories;
	std::map<std::string, int32> Ids;
	std::set<std::string> PlacesRead;
	int32 NextId = 1;
	uint32 Version = 0;
	/** How many groups of the category that is being read have been seen. */
	int32 NumGroups = 0;
	FDelegateHandle SelectionHandle;
	/** Whose rows were built. */
	TArray<TWeakObjectPtr<AActor>> BuiltFor;
	bool bBuilt = false;
	bool bRowsOutdated = false;
};
