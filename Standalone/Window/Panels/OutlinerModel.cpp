// Copyright Corvane. MIT License.
#include "OutlinerModel.h"

#include <algorithm>
#include <unordered_map>

#include "EditorViews.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Panels/PanelText.h"
#include "Panels/RowDifference.h"
#include "UObject/Class.h"
#include "WindowImages.h"

bool FOutlinerModel::Update()
{
	if (IsUpToDate())
	{
		return false;
	}
	ReadActors();
	Filter();
	return true;
}

void FOutlinerModel::SetSearch(const QString& InSearch)
{
	Search = InSearch;
	Filter();
}

AActor* FOutlinerModel::GetActor(int Row) const
{
	return Shown[static_cast<size_t>(Row)].Actor.Get();
}

QModelIndex FOutlinerModel::Find(const AActor* Actor) const
{
	const auto Found =
		std::find_if(Shown.begin(), Shown.end(), [Actor](const FActorRow& Row) { return Row.Actor == Actor; });
	return Actor && Found != Shown.end() ? index(static_cast<int>(Found - Shown.begin()), Label) : QModelIndex();
}

bool FOutlinerModel::IsUpToDate() const
{
	size_t Row = 0;
	for (const AActor* Actor : FEditorViews::GetLevelWorld()->PersistentLevel->Actors)
	{
		if (!IsValid(Actor))
		{
			continue;
		}
		if (Row == Actors.size() || Actors[Row].Actor != Actor)
		{
			return false;
		}
		++Row;
	}
	return Row == Actors.size();
}

void FOutlinerModel::ReadActors()
{
	struct FClassLook
	{
		QString Type;
		QIcon Icon;
	};
	std::unordered_map<const UClass*, FClassLook> Looks;
	Actors.clear();
	for (AActor* Actor : FEditorViews::GetLevelWorld()->PersistentLevel->Actors)
	{
		if (!IsValid(Actor))
		{
			continue;
		}
		const UClass* Class = Actor->GetClass();
		auto Look = Looks.find(Class);
		if (Look == Looks.end())
		{
			const FClassLook New = {FPanelText::OneLine(Class->GetName()), FWindowImages::GetClassIcon(Class)};
			Look = Looks.emplace(Class, New).first;
		}
		Actors.push_back({Actor, FPanelText::OneLine(Actor->GetName()), Look->second.Type, Look->second.Icon});
	}
}

void FOutlinerModel::Filter()
{
	std::vector<FActorRow> Found;
	std::copy_if(Actors.begin(), Actors.end(), std::back_inserter(Found),
		[this](const FActorRow& Row) {
			return FPanelText::Matches(Search, {Row.Label, Row.Type});
		});

	const auto IsSame = [](const FActorRow& Left, const FActorRow& Right) { return Left.Actor == Right.Actor; };
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
		Shown = std::move(Found);
		endInsertRows();
	}
}

int FOutlinerModel::rowCount(const QModelIndex& Parent) const
{
	return Parent.isValid() ? 0 : static_cast<int>(Shown.size());
}

int FOutlinerModel::columnCount(const QModelIndex& Parent) const
{
	return Parent.isValid() ? 0 : static_cast<int>(NumColumns);
}

QVariant FOutlinerModel::data(const QModelIndex& Index, int Role) const
{
	const FActorRow& Row = Shown[static_cast<size_t>(Index.row())];
	switch (Role)
	{
		case Qt::DisplayRole:
			return Index.column() == Label ? Row.Label : Row.Type;
		case Qt::ToolTipRole:
			return QStringLiteral("%1 (%2)").arg(Row.Label, Row.Type).toHtmlEscaped();
		case Qt::DecorationRole:
			return Index.column() == Label ? QVariant(Row.Icon) : QVariant();
		default:
			return QVariant();
	}
}

QVariant FOutlinerModel::headerData(int Section, Qt::Orientation Orientation, int Role) const
{
	if (Orientation != Qt::Horizontal || Role != Qt::DisplayRole)
	{
		return QVariant();
	}
	return Section == Label ? QStringLiteral("Label") : QStringLiteral("Type");
}
