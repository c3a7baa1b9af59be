// Copyright Corvane. MIT License.
#include "AssetModel.h"

#include <algorithm>

#include "AssetRegistry/IAssetRegistry.h"
#include "EditorAssets.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Panels/AssetThumbnail.h"
#include "Panels/PanelText.h"
#include "Panels/RowDifference.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

bool FAssetModel::IsSameList(const TArray<FAssetData>& Data) const
{
	const auto IsSame = [](const FAssetData& Left, const FAssetData& Right)
	{ return Left.PackageName == Right.PackageName && Left.AssetName == Right.AssetName; };
	// An asset of the same name may have taken another one's place.
	return std::equal(Data.begin(), Data.end(), Known.begin(), Known.end(), IsSame) &&
		std::none_of(Assets.begin(), Assets.end(), [](const FTile& Tile) { return Tile.Asset.IsStale(); });
}

bool FAssetModel::Update()
{
	TArray<FAssetData> Data;
	// A session may have unloaded its module.
	if (const IAssetRegistry* Registry = IAssetRegistry::Get())
	{
		Registry->GetAllAssets(Data);
	}
	const bool bSameList = IsSameList(Data);
	if (!bSameList)
	{
		Known = Data;
		Assets.clear();
		for (UObject* Asset : FEditorAssets::GetAll())
		{
			// The registry may know of one that has gone.
			if (IsValid(Asset))
			{
				Assets.push_back(MakeTile(*Asset));
			}
		}
	}
	bool bChanged = !bSameList;
	for (FTile& Tile : Assets)
	{
		bChanged |= RefreshTile(Tile);
	}
	if (bChanged)
	{
		Filter();
	}
	return bChanged;
}

FAssetModel::FTile FAssetModel::MakeTile(UObject& Asset)
{
	FTile Tile;
	Tile.Asset = &Asset;
	Tile.Name = FPanelText::OneLine(Asset.GetName());
	Tile.Path = FPanelText::OneLine(FEditorAssets::GetPath(&Asset));
	Tile.Class = FPanelText::OneLine(Asset.GetClass()->GetName());
	Tile.bTexture = Asset.IsA<UTexture>();
	return Tile;
}

bool FAssetModel::RefreshTile(FTile& Tile)
{
	const UObject* Asset = Tile.Asset.Get();
	const auto* Target = Cast<UTextureRenderTarget2D>(Asset);
	const bool bDirty = Asset && Asset->GetOutermost()->IsDirty();
	const QSize Size = Target ? QSize(Target->SizeX, Target->SizeY) : QSize();
	if (bDirty == Tile.bDirty && Size == Tile.Size)
	{
		return false;
	}
	Tile.bDirty = bDirty;
	Tile.Size = Size;
	return true;
}

void FAssetModel::SetSearch(const QString& InSearch)
{
	Search = InSearch;
	Filter();
}

void FAssetModel::Filter()
{
	std::vector<FTile> Found;
	std::copy_if(Assets.begin(), Assets.end(), std::back_inserter(Found),
		[this](const FTile& Tile) {
			return FPanelText::Matches(Search, {Tile.Name, Tile.Class});
		});
	const auto IsSame = [](const FTile& Left, const FTile& Right) { return Left.Asset == Right.Asset; };
	const FRowDifference Difference(Shown, Found, IsSame);
	const auto First = Shown.begin() + Difference.First;
	if (Difference.NumOld > 0)
	{
		beginRemoveRows(QModelIndex(), Difference.First, Difference.First + Difference.NumOld - 1);
		Shown.erase(First, First + Difference.NumOld);
		endRemoveRows();
	}
	if (Difference.NumNew > 0)
	{
		beginInsertRows(QModelIndex(), Difference.First, Difference.First + Difference.NumNew - 1);
		Shown.insert(Shown.begin() + Difference.First, Found.begin() + Difference.First,
			Found.begin() + Difference.First + Difference.NumNew);
		endInsertRows();
	}
	// The others may look different.
	Shown = std::move(Found);
	Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int FAssetModel::FindRow(const UObject* Asset) const
{
	const auto Found =
		std::find_if(Shown.begin(), Shown.end(), [Asset](const FTile& Tile) { return Tile.Asset == Asset; });
	return Asset && Found != Shown.end() ? static_cast<int>(Found - Shown.begin()) : -1;
}

int FAssetModel::rowCount(const QModelIndex& Parent) const
{
	return Parent.isValid() ? 0 : static_cast<int>(Shown.size());
}

QVariant FAssetModel::data(const QModelIndex& Index, int Role) const
{
	const FTile& Tile = Shown[static_cast<size_t>(Index.row())];
	const QString Size =
		Tile.Size.isValid() ? QStringLiteral("%1 × %2").arg(Tile.Size.width()).arg(Tile.Size.height()) : QString();
	switch (Role)
	{
		case Qt::DisplayRole:
			return Tile.bDirty ? Tile.Name + QStringLiteral("*") : Tile.Name;
		case Qt::ToolTipRole:
			return QStringLiteral("%1\n%2 %3%4")
				.arg(Tile.Path, Tile.Class, Size, Tile.bDirty ? QStringLiteral("\nnot saved") : QString())
				.toHtmlEscaped()
				.replace(u'\n', QStringLiteral("<br>"));
		case Qt::DecorationRole:
			return FAssetThumbnail::Make(Tile.bTexture, Size);
		default:
			return QVariant();
	}
}
