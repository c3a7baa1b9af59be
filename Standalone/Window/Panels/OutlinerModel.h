// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

class AActor;

/** The actors of the open level as a table of label and type, in the level's order; those that a search finds. */
class FOutlinerModel : public QAbstractTableModel
{
public:
	enum EColumn
	{
		Label,
		Type,
		NumColumns
	};

	using QAbstractTableModel::QAbstractTableModel;

	/** Brings it up to date with the level. @return whether that has changed. */
	bool Update();
	/** Words that a label or a type must contain. */
	void SetSearch(const QString& InSearch);

	/** The actor in a row, or null if it has gone since. */
	AActor* GetActor(int Row) const;
	/** The label of an actor, or an index that is not valid if it is not shown. */
	QModelIndex Find(const AActor* Actor) const;
	/** The actors of the level, found or not. */
	size_t GetNumActors() const { return Actors.size(); }

	int rowCount(const QModelIndex& Parent = QModelIndex()) const override;
	int columnCount(const QModelIndex& Parent = QModelIndex()) const override;
	QVariant data(const QModelIndex& Index, int Role) const override;
	QVariant headerData(int Section, Qt::Orientation Orientation, int Role) const override;

private:
	struct FActorRow
	{
		TWeakObjectPtr<AActor> Actor;
		QString Label;
		QString Type;
		QIcon Icon;
	};

	bool IsUpToDate() const;
	void ReadActors();
	/** Shows what the search finds. Rows above and below of what differs stay, with their selection. */
	void Filter();

	/** All actors of the level, and those that are shown. */
	std::vector<FActorRow> Actors;
	std::vector<FActorRow> Shown;
	QString Search;
};
