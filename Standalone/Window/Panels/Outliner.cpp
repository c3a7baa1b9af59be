// Copyright Corvane. MIT License.
#include "Outliner.h"

#include "ActorEdits.h"
#include "GameFramework/Actor.h"
#include "Panels/ListNote.h"
#include "Panels/SearchBox.h"
#include "WindowStyle.h"

namespace
{
	constexpr int LabelWidth = 90;
	constexpr int TypeWidth = 150;

	QString CountActors(size_t Number)
	{
		return Number == 1 ? QStringLiteral("1 actor") : QStringLiteral("%1 actors").arg(Number);
	}
}

FOutliner::FOutliner(FWindowContext& /*Context*/, QWidget* Parent)
	: FPanel(Parent),
	  SearchBox(new FSearchBox(QStringLiteral("Search actors"), this)),
	  View(new QTreeView(this)),
	  Note(new FListNote(*View)),
	  Footer(new QLabel(this)),
	  Model(new FOutlinerModel(this))
{
	setAccessibleName(QStringLiteral("World Outliner"));
	SetUpView();
	SearchBox->SetList(*View);
	LayOut();
	QObject::connect(SearchBox, &QLineEdit::textChanged, this, [this](const QString& Text) { Search(Text); });
	QObject::connect(View->selectionModel(), &QItemSelectionModel::selectionChanged, this,
		[this]
		{
			if (!bFollowing)
			{
				SelectInEditor();
			}
		});
	QObject::connect(View, &QTreeView::activated, this, [this] { OnFocusRequested(); });
}

void FOutliner::SetUpView()
{
	View->setModel(Model);
	View->setAccessibleName(QStringLiteral("Actors"));
	View->setRootIsDecorated(false);
	View->setUniformRowHeights(true);
	View->setAllColumnsShowFocus(true);
	View->setAlternatingRowColors(true);
	View->setSelectionMode(QAbstractItemView::ExtendedSelection);
	View->setEditTriggers(QAbstractItemView::NoEditTriggers);
	View->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
	View->setFrameShape(QFrame::NoFrame);
	View->header()->setStretchLastSection(false);
	View->header()->setSectionResizeMode(FOutlinerModel::Label, QHeaderView::Stretch);
	View->header()->setSectionResizeMode(FOutlinerModel::Type, QHeaderView::Interactive);
	View->header()->resizeSection(FOutlinerModel::Type, TypeWidth);
	View->header()->setSectionsMovable(false);
	// In a narrow panel it is the type that is cut.
	View->header()->setMinimumSectionSize(LabelWidth);
	View->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void FOutliner::LayOut()
{
	Footer->setAccessibleName(QStringLiteral("Number of actors"));
	Footer->setContentsMargins(6, 2, 6, 4);
	auto* Column = new QVBoxLayout(this);
	Column->setContentsMargins(0, 0, 0, 0);
	Column->setSpacing(0);
	auto* Top = new QHBoxLayout;
	Top->setContentsMargins(4, 4, 4, 4);
	Top->addWidget(SearchBox);
	Column->addLayout(Top);
	Column->addWidget(View, 1);
	Column->addWidget(Footer);
}

AActor* FOutliner::GetActor(const QModelIndex& Index) const
{
	return Index.isValid() ? Model->GetActor(Index.row()) : nullptr;
}

AActor* FOutliner::GetTopActor() const
{
	return View->verticalScrollBar()->value() > 0 ? GetActor(View->indexAt(QPoint(1, 1))) : nullptr;
}

void FOutliner::Poll()
{
	bFollowing = true;
	const TWeakObjectPtr<AActor> Top = GetTopActor();
	const TWeakObjectPtr<AActor> Current = GetActor(View->currentIndex());
	const bool bOtherActors = Model->Update();
	if (bOtherActors)
	{
		// By actors: rows that only moved may have been taken away and put back.
		View->selectionModel()->setCurrentIndex(Model->Find(Current.Get()), QItemSelectionModel::NoUpdate);
		View->scrollTo(Model->Find(Top.Get()), QAbstractItemView::PositionAtTop);
	}
	const bool bOtherSelection = Selection.Update();
	if (bOtherActors || bOtherSelection)
	{
		SelectInList(bOtherSelection);
		ShowNumbers();
	}
	bFollowing = false;
}

void FOutliner::Search(const QString& Text)
{
	bFollowing = true;
	Model->SetSearch(Text);
	SelectInList(true);
	ShowNumbers();
	bFollowing = false;
}

void FOutliner::SelectInEditor()
{
	std::vector<AActor*> Wanted;
	for (const QItemSelectionRange& Range : View->selectionModel()->selection())
	{
		for (int Row = Range.top(); Row <= Range.bottom(); ++Row)
		{
			if (AActor* Actor = Model->GetActor(Row))
			{
				Wanted.push_back(Actor);
			}
		}
	}
	FActorEdits::SelectOnly(Wanted);
	// What this panel did itself must not move it at the next poll.
	Selection.Update();
	ShowNumbers();
}

void FOutliner::SelectInList(bool bScroll)
{
	QItemSelection Wanted;
	const int NumRows = Model->rowCount();
	int First = -1;
	for (int Row = 0, Begin = -1; Selection.Num() > 0 && Row <= NumRows; ++Row)
	{
		const bool bSelected = Row < NumRows && Selection.Contains(Model->GetActor(Row));
		First = bSelected && First < 0 ? Row : First;
		if (bSelected && Begin < 0)
		{
			Begin = Row;
		}
		else if (!bSelected && Begin >= 0)
		{
			Wanted.append(QItemSelectionRange(Model->index(Begin, 0), Model->index(Row - 1, Model->columnCount() - 1)));
			Begin = -1;
		}
	}
	QItemSelectionModel* Chosen = View->selectionModel();
	Chosen->select(Wanted, QItemSelectionModel::ClearAndSelect);
	if (bScroll && First >= 0)
	{
		View->scrollTo(Model->index(First, 0));
		if (!Chosen->isSelected(Chosen->currentIndex()))
		{
			Chosen->setCurrentIndex(Model->index(First, 0), QItemSelectionModel::NoUpdate);
		}
	}
}

void FOutliner::ShowNumbers()
{
	const int NumShown = Model->rowCount();
	const bool bSearching = !SearchBox->text().trimmed().isEmpty();
	QString Text = CountActors(Model->GetNumActors());
	if (bSearching)
	{
		Text = QStringLiteral("Showing %1 of %2").arg(NumShown).arg(Text);
	}
	if (Selection.Num() > 0)
	{
		Text += QStringLiteral(" (%1 selected)").arg(Selection.Num());
	}
	Footer->setText(Text);
	const QString Reason =
		bSearching ? QStringLiteral("No matching actors") : QStringLiteral("This level has no actors");
	Note->Show(NumShown == 0 ? Reason : QString());
}
