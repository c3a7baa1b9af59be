// Copyright Corvane. MIT License.
#pragma once

#include "WindowFixture.h"

#include "Panels/DetailsRowLine.h"
#include "Panels/DetailsView.h"

#include "EveryPropertyActor.h"
#include "Engine/World.h"

/** A details panel, shown, and actors to select. */
class FDetailsViewFixture : public FWindowFixture
{
protected:
	FDetailsViewFixture() { ShowPanel(View, 420, 600); }

	template <typename ActorType>
	ActorType* Spawn()
	{
		return Editor.GetWorld(0)->SpawnActor<ActorType>();
	}
	/** Selects these alone; the panel has its frame. */
	void Select(const std::vector<AActor*>& Actors);
	/** Spawns one and selects it. */
	AEveryPropertyActor& SelectOne();

	/** A frame in which no time has passed. */
	void Step() { Frame(View); }
	/** The next beat of the panel. */
	void Beat();

	/** The names of the lines, from the top down. */
	QStringList GetNames() const;
	FDetailsLine* GetLine(const char* Name) const;
	/** The row of a property, or null if it is not shown. */
	FDetailsRowLine* FindRow(const char* Path);
	/** The row's number for the editor; 0 if it has none. */
	int32 FindId(const char* Path);
	/** Opens the line by the arrow key. */
	void Open(FDetailsLine* Line);

	/** The one widget of that type that shows the property's value; a failure if it is not shown. */
	template <typename WidgetType>
	WidgetType* GetValue(const char* Path);
	QToolButton* GetReset(const char* Path);
	void Type(const char* Path, const QString& Text);

	/** What Undo would take back; "" for nothing. */
	static QString GetUndo();

	FDetailsView View{Context};
};

template <typename WidgetType>
WidgetType* FDetailsViewFixture::GetValue(const char* Path)
{
	QWidget* Row = FindRow(Path);
	for (WidgetType* Found : Row ? Row->findChildren<WidgetType*>() : QList<WidgetType*>())
	{
		if (!Found->isHidden())
		{
			return Found;
		}
	}
	ADD_FAILURE() << "no such value is shown: " << Path;
	return nullptr;
}
