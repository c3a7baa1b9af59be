// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"
#include "Panels/Panel.h"
#include "WindowContext.h"

/**
 * Which Spout senders are active on the machine: adds, renames and removes them, and follows what others do four times
 * a second by the application's clock.
 */
class FSendersPanel : public FPanel
{
public:
	explicit FSendersPanel(FWindowContext& InContext, QWidget* Parent = nullptr);

	void Poll() override;
	void Invalidate() override { bDue = true; }

	QListWidget& GetList() const { return *List; }
	QLineEdit& GetNameBox() const { return *NameBox; }

protected:
	bool eventFilter(QObject* Object, QEvent* Event) override;

private:
	void MakeNameLine(QBoxLayout& Box);
	void MakeButtons(QBoxLayout& Box);

	/** Shows the names as they are now. */
	void Refresh();
	void Show(const TArray<FString>& Names);
	/** Makes these the active ones, and shows them. */
	void SetNames(const TArray<FString>& Names);
	/** @return the reason why nothing more can be called so, or "". */
	static QString FindFault(const QString& Name);

	void AddTyped();
	void RemoveSelected();
	void RemoveAll();
	/** The user has given an entry another text. */
	void Rename(QListWidgetItem& Entry);
	bool IsEditing() const;
	void EnableButtons();

	FWindowContext& Context;
	QLineEdit* NameBox = nullptr;
	QPushButton* AddButton = nullptr;
	QPushButton* RemoveButton = nullptr;
	QPushButton* RemoveAllButton = nullptr;
	QListWidget* List;
	QLabel* EmptyLabel = nullptr;
	/** What is shown. */
	TArray<FString> Shown;
	double LastLook = -1.0;
	bool bDue = true;
};
