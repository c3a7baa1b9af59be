// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

/** The assets in memory as tiles, in the order of their making; those that a search finds. */
class FAssetModel : public QAbstractListModel
{
public:
	using QAbstractListModel::QAbstractListModel;

	/** Brings it up to date with the registry. @return whether other tiles are shown. */
	bool Update();
	/** Words that a name or a class must contain. */
	void SetSearch(const QString& InSearch);

	int GetNumAssets() const { return static_cast<int>(Assets.size()); }
	/** The asset's path, as files have it. */
	QString GetPath(int Row) const { return Shown[static_cast<size_t>(Row)].Path; }
	/** The row of an asset, or -1 if it is not shown. */
	int FindRow(const UObject* Asset) const;

	int rowCount(const QModelIndex& Parent = QModelIndex()) const override;
	QVariant data(const QModelIndex& Index, int Role) const override;

private:
	struct FTile
	{
		TWeakObjectPtr<UObject> Asset;
		QString Name;
		QString Path;
		QString Class;
		/** In pixels; empty where there is none. */
		QSize Size;
		bool bTexture = false;
		bool bDirty = false;
	};

	static FTile MakeTile(UObject& Asset);
	/** What may change while the asset stays. @return whether it has. */
	static bool RefreshTile(FTile& Tile);
	bool IsSameList(const TArray<FAssetData>& Data) const;
	void Filter();

	/** What the registry knew at the last update. */
	TArray<FAssetData> Known;
	std::vector<FTile> Assets;
	std::vector<FTile> Shown;
	QString Search;
};
