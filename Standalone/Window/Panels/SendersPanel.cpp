// Copyright Corvane. MIT License.
#include "SendersPanel.h"

#include <algorithm>

#include "WindowImages.h"
#include "WindowStyle.h"
#include "WindowText.h"

#include "Framework/Application/SlateApplication.h"
#include "ZAVSpoutNames.h"

namespace
{
	constexpr double SecondsPerLook = 0.25;
	/** Spout keeps names in 256 bytes, with a zero at the end. */
	constexpr int MaxNameBytes = 255;
	constexpr int MaxShownOfName = 40;
	constexpr int LineHeight = 22;

	bool IsSame(const FString& Lhs, const FString& Rhs)
	{
		return Lhs.Equals(Rhs, ESearchCase::CaseSensitive);
	}

	bool AreSame(const TArray<FString>& Lhs, const TArray<FString>& Rhs)
	{
		return Lhs.Num() == Rhs.Num() && std::equal(Lhs.begin(), Lhs.end(), Rhs.begin(), IsSame);
	}

	/** For one line of text. */
	QString Quote(const QString& Name)
	{
		QString Short = Name.size() > MaxShownOfName ? Name.left(MaxShownOfName) + QChar(0x2026) : Name;
		std::replace_if(
			Short.begin(), Short.end(), [](QChar Unit) { return !Unit.isPrint() && !Unit.isSurrogate(); }, QChar(u' '));
		return QLatin1Char('"') + Short + QLatin1Char('"');
	}

	QString Count(int Num)
	{
		return Num == 1 ? QStringLiteral("1 sender") : QStringLiteral("%1 senders").arg(Num);
	}

	/** Where the name is now: at best in its old place. @return -1 if it has gone. */
	int Find(const TArray<FString>& Names, const FString& Name, int Place)
	{
		if (Names.IsValidIndex(Place) && IsSame(Names[Place], Name))
		{
			return Place;
		}
		return Names.IndexOfByPredicate([&Name](const FString& Candidate) { return IsSame(Candidate, Name); });
	}
}

FSendersPanel::FSendersPanel(FWindowContext& InContext, QWidget* Parent)
	: FPanel(Parent), Context(InContext), List(new QListWidget(this))
{
	setAccessibleName(QStringLiteral("Spout senders"));
	QVBoxLayout* Box = new QVBoxLayout(this);
	Box->setContentsMargins(6, 6, 6, 6);
	Box->setSpacing(6);
	MakeNameLine(*Box);
	List->setAccessibleName(QStringLiteral("Active Spout senders"));
	List->setToolTip(QStringLiteral("The Spout senders that are active on this machine"));
	List->setSelectionMode(QAbstractItemView::ExtendedSelection);
	List->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
	List->setUniformItemSizes(true);
	List->setTextElideMode(Qt::ElideMiddle);
	List->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	List->installEventFilter(this);
	connect(List, &QListWidget::itemChanged, this, [this](QListWidgetItem* Entry) { Rename(*Entry); });
	connect(List, &QListWidget::itemSelectionChanged, this, [this] { EnableButtons(); });
	Box->addWidget(List, 1);
	QVBoxLayout* Over = new QVBoxLayout(List->viewport());
	EmptyLabel = new QLabel(QStringLiteral("No active senders"), List->viewport());
	EmptyLabel->setAlignment(Qt::AlignCenter);
	EmptyLabel->setWordWrap(true);
	EmptyLabel->setForegroundRole(QPalette::PlaceholderText);
	EmptyLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
	Over->addWidget(EmptyLabel);
	MakeButtons(*Box);
	EnableButtons();
	// As they are seen, from the top down.
	setTabOrder(AddButton, List);
	setTabOrder(List, RemoveButton);
	setTabOrder(RemoveButton, RemoveAllButton);
}

void FSendersPanel::MakeNameLine(QBoxLayout& Box)
{
	QHBoxLayout* Line = new QHBoxLayout;
	NameBox = new QLineEdit(this);
	NameBox->setPlaceholderText(QStringLiteral("Name of a new sender"));
	NameBox->setAccessibleName(QStringLiteral("Name of a new sender"));
	AddButton = new QPushButton(FWindowImages::GetDrawn(QStringLiteral("add")), QStringLiteral("Add"), this);
	AddButton->setAccessibleName(QStringLiteral("Add sender"));
	AddButton->setToolTip(QStringLiteral("Makes a sender of this name active, as if a program had started to send"));
	connect(NameBox, &QLineEdit::returnPressed, this, [this] { AddTyped(); });
	connect(AddButton, &QPushButton::clicked, this, [this] { AddTyped(); });
	Line->addWidget(NameBox, 1);
	Line->addWidget(AddButton);
	Box.addLayout(Line);
}

void FSendersPanel::MakeButtons(QBoxLayout& Box)
{
	QHBoxLayout* Line = new QHBoxLayout;
	RemoveButton = new QPushButton(QStringLiteral("Remove"), this);
	RemoveButton->setAccessibleName(QStringLiteral("Remove selected senders"));
	RemoveButton->setToolTip(QStringLiteral("Removes the selected senders (Delete)"));
	RemoveAllButton = new QPushButton(QStringLiteral("Remove all"), this);
	RemoveAllButton->setAccessibleName(QStringLiteral("Remove all senders"));
	connect(RemoveButton, &QPushButton::clicked, this, [this] { RemoveSelected(); });
	connect(RemoveAllButton, &QPushButton::clicked, this, [this] { RemoveAll(); });
	Line->addStretch(1);
	Line->addWidget(RemoveButton);
	Line->addWidget(RemoveAllButton);
	Box.addLayout(Line);
}

void FSendersPanel::Poll()
{
	const double Now = FSlateApplication::Get().GetCurrentTime();
	const bool bLook = bDue || Now >= LastLook + SecondsPerLook || Now < LastLook;
	// What is being typed into the list would be lost with its entry.
	if (bLook && isVisible() && !IsEditing())
	{
		LastLook = Now;
		bDue = false;
		Refresh();
	}
}

bool FSendersPanel::IsEditing() const
{
	const QWidget* Focus = QApplication::focusWidget();
	return Focus && Focus != List && List->isAncestorOf(Focus);
}

void FSendersPanel::Refresh()
{
	const TArray<FString> Names = ZAVSpoutNames::GetActiveSenderNames();
	if (!AreSame(Names, Shown))
	{
		Show(Names);
	}
}

void FSendersPanel::Show(const TArray<FString>& Names)
{
	QSet<QString> Selected;
	for (const QListWidgetItem* Entry : List->selectedItems())
	{
		Selected.insert(Entry->text());
	}
	const QString Current = List->currentItem() ? List->currentItem()->text() : QString();
	const int CurrentRow = List->currentRow();
	const int Scroll = List->verticalScrollBar()->value();
	const QSignalBlocker Blocker(List);
	Shown = Names;
	List->clear();
	int NewCurrent = std::min(CurrentRow, static_cast<int>(Names.Num()) - 1);
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		const QString Name = FWindowText::ToQt(Names[Index]);
		QListWidgetItem* Entry = new QListWidgetItem(Name, List);
		Entry->setFlags(Entry->flags() | Qt::ItemIsEditable);
		Entry->setSizeHint(QSize(0, LineHeight));
		NewCurrent = CurrentRow >= 0 && Name == Current ? Index : NewCurrent;
	}
	List->setCurrentRow(NewCurrent, QItemSelectionModel::NoUpdate);
	for (int Row = 0; Row < List->count(); ++Row)
	{
		List->item(Row)->setSelected(Selected.contains(List->item(Row)->text()));
	}
	List->verticalScrollBar()->setValue(Scroll);
	EmptyLabel->setVisible(List->count() == 0);
	EnableButtons();
}

void FSendersPanel::SetNames(const TArray<FString>& Names)
{
	ZAVSpoutNames::SetActiveSenderNames(Names);
	Refresh();
}

QString FSendersPanel::FindFault(const QString& Name)
{
	if (Name.trimmed().isEmpty())
	{
		return QStringLiteral("A sender needs a name");
	}
	if (Name.toUtf8().size() > MaxNameBytes)
	{
		return QStringLiteral("A sender's name has at most %1 bytes: %2").arg(MaxNameBytes).arg(Quote(Name));
	}
	const bool bTaken = Find(ZAVSpoutNames::GetActiveSenderNames(), FWindowText::FromQt(Name), 0) >= 0;
	return bTaken ? QStringLiteral("There is a sender %1 already").arg(Quote(Name)) : QString();
}

void FSendersPanel::AddTyped()
{
	const QString Name = NameBox->text();
	const QString Fault = FindFault(Name);
	if (!Fault.isEmpty())
	{
		Context.Say(Fault);
		NameBox->selectAll();
		return;
	}
	TArray<FString> Names = ZAVSpoutNames::GetActiveSenderNames();
	Names.Add(FWindowText::FromQt(Name));
	SetNames(Names);
	List->setCurrentRow(List->count() - 1, QItemSelectionModel::ClearAndSelect);
	NameBox->clear();
	Context.Say(QStringLiteral("Added sender %1").arg(Quote(Name)));
}

void FSendersPanel::RemoveSelected()
{
	TArray<FString> Names = ZAVSpoutNames::GetActiveSenderNames();
	std::vector<int> Rows;
	for (const QListWidgetItem* Entry : List->selectedItems())
	{
		Rows.push_back(List->row(Entry));
	}
	// From the end, so that places stay what they are.
	std::sort(Rows.rbegin(), Rows.rend());
	QStringList Removed;
	for (const int Row : Rows)
	{
		const int Place = Find(Names, Shown[Row], Row);
		if (Place >= 0)
		{
			Removed.push_back(FWindowText::ToQt(Names[Place]));
			Names.RemoveAt(Place, 1);
		}
	}
	if (Rows.empty())
	{
		return;
	}
	SetNames(Names);
	// On to what has taken the place: Delete again removes that.
	List->setCurrentRow(std::min(Rows.back(), List->count() - 1), QItemSelectionModel::ClearAndSelect);
	Context.Say(Removed.size() == 1 ? QStringLiteral("Removed sender %1").arg(Quote(Removed[0]))
									: QStringLiteral("Removed %1").arg(Count(static_cast<int>(Removed.size()))));
}

void FSendersPanel::RemoveAll()
{
	const int Num = ZAVSpoutNames::GetActiveSenderNames().Num();
	SetNames({});
	Context.Say(QStringLiteral("Removed %1").arg(Count(Num)));
}

void FSendersPanel::Rename(QListWidgetItem& Entry)
{
	const int Row = List->row(&Entry);
	const QString OldName = FWindowText::ToQt(Shown[Row]);
	const QString NewName = Entry.text();
	TArray<FString> Names = ZAVSpoutNames::GetActiveSenderNames();
	const int Place = Find(Names, Shown[Row], Row);
	const QString Fault =
		Place < 0 ? QStringLiteral("Sender %1 is no longer active").arg(Quote(OldName)) : FindFault(NewName);
	bDue = true;
	if (!Fault.isEmpty())
	{
		const QSignalBlocker Blocker(List);
		Entry.setText(OldName);
		Context.Say(Fault);
		return;
	}
	Shown[Row] = Names[Place] = FWindowText::FromQt(NewName);
	ZAVSpoutNames::SetActiveSenderNames(Names);
	Context.Say(QStringLiteral("Renamed sender %1 to %2").arg(Quote(OldName), Quote(NewName)));
}

void FSendersPanel::EnableButtons()
{
	RemoveButton->setEnabled(!List->selectedItems().isEmpty());
	RemoveAllButton->setEnabled(List->count() > 0);
}

bool FSendersPanel::eventFilter(QObject* Object, QEvent* Event)
{
	if (Object == List && Event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(Event)->key() == Qt::Key_Delete)
	{
		RemoveSelected();
		return true;
	}
	return FPanel::eventFilter(Object, Event);
}
