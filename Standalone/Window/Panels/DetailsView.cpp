// Copyright Corvane. MIT License.
#include "DetailsView.h"

#include <algorithm>

#include "FocusSync.h"
#include "Panels/DetailsList.h"
#include "Panels/DetailsReset.h"
#include "WindowImages.h"
#include "WindowStyle.h"
#include "WindowText.h"

#include "Editor.h"
#include "Engine/Selection.h"
#include "Framework/Application/SlateApplication.h"
#include "GameFramework/Actor.h"
#include "PropertyHandle.h"

namespace
{
	/** What changes elsewhere, as the senders on the machine do, is seen after that many seconds. */
	constexpr double SecondsPerBeat = 0.25;
	constexpr int TitlePoints = 10;

	/** The nearest class that all selected actors have in common; null without any. */
	const UClass* FindCommonClass(const USelection& Selection)
	{
		const UClass* Class = nullptr;
		TArray<UObject*> Actors;
		Selection.GetSelectedObjects(Actors);
		for (const UObject* Actor : Actors)
		{
			Class = Class ? Class : Actor->GetClass();
			while (!Actor->IsA(Class))
			{
				Class = Class->GetSuperClass();
			}
		}
		return Class;
	}

	bool CanTakeTab(const QWidget* Widget)
	{
		return (Widget->focusPolicy() & Qt::TabFocus) && Widget->isVisible() && Widget->isEnabled();
	}
}

FDetailsView::FDetailsView(FWindowContext& InContext, QWidget* Parent)
	: FPanel(Parent), Context(InContext), List(new FDetailsList(Tree, this)), Message(new QLabel(this))
{
	setAccessibleName(QStringLiteral("Details"));
	QVBoxLayout* Box = new QVBoxLayout(this);
	Box->setContentsMargins(0, 0, 0, 0);
	Box->setSpacing(0);
	MakeHeader(*Box);
	Message->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
	Message->setWordWrap(true);
	Message->setMargin(24);
	Message->setForegroundRole(QPalette::PlaceholderText);
	Box->addWidget(Message, 1);
	Box->addWidget(List, 1);
	List->OnReset = [this](int32 Id) { Reset(Id); };
	// Leaves take what the user does for themselves, so that nothing of it comes up to here.
	qApp->installEventFilter(this);
	ShowMessage();
}

FDetailsView::~FDetailsView() = default;

void FDetailsView::MakeHeader(QBoxLayout& Box)
{
	QHBoxLayout* Line = new QHBoxLayout;
	Line->setContentsMargins(6, 5, 6, 3);
	Line->setSpacing(6);
	Icon = new QLabel(this);
	Title = new QLabel(this);
	Title->setTextFormat(Qt::PlainText);
	Title->setFont(FWindowStyle::GetFont(TitlePoints, true));
	// A long name must not keep the panel from becoming narrow.
	Title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
	Line->addWidget(Icon);
	Line->addWidget(Title, 1);
	Icon->hide();
	Title->hide();
	Box.addLayout(Line);
	Search = new QLineEdit(this);
	Search->setPlaceholderText(QStringLiteral("Search Details"));
	Search->setAccessibleName(QStringLiteral("Search Details"));
	Search->setClearButtonEnabled(true);
	Search->addAction(FWindowImages::GetDrawn(QStringLiteral("search")), QLineEdit::LeadingPosition);
	connect(Search, &QLineEdit::textChanged, this,
		[this](const QString& Text)
		{
			Tree.SetSearch(Text);
			List->ShowLines();
			ShowMessage();
			bDue = true;
		});
	QHBoxLayout* Around = new QHBoxLayout;
	Around->setContentsMargins(6, 2, 6, 5);
	Around->addWidget(Search);
	Box.addLayout(Around);
}

void FDetailsView::Poll()
{
	if (Context.IsScript() || !isVisible())
	{
		return;
	}
	if (!IsBeatDue())
	{
		List->PollBetween();
		return;
	}
	ReadRows();
	List->PollSeen(true);
}

bool FDetailsView::IsBeatDue()
{
	const double Now = FSlateApplication::Get().GetCurrentTime();
	const bool bNow =
		bDue || !Context.Editor.GetDetails().IsBuilt() || Now >= LastBeat + SecondsPerBeat || Now < LastBeat;
	if (bNow)
	{
		LastBeat = Now;
		bDue = false;
	}
	return bNow;
}

void FDetailsView::ShowNow()
{
	if (!Context.IsScript())
	{
		ReadRows();
	}
	else
	{
		// Having rows made may write to what they show, which a script has to ask for itself.
		TakeOver(Context.Editor.GetDetails().GetLastCategories());
	}
	List->PollSeen(true);
}

void FDetailsView::ReadRows()
{
	const FDetailsList::FWork Work = List->FindWork();
	TakeOver(Context.Editor.GetDetails().GetCategories());
	List->Resume(Work);
}

void FDetailsView::TakeOver(const std::vector<FDetailsPanel::FCategory>& Categories)
{
	ShowTitle();
	const uint32 Version = Context.Editor.GetDetails().GetVersion();
	if (Version == ShownVersion)
	{
		return;
	}
	ShownVersion = Version;
	int32 FirstId = 0;
	int32 GreatestId = LastId;
	for (const FDetailsPanel::FCategory& Category : Categories)
	{
		for (const FDetailsRow& Row : Category.Rows)
		{
			FirstId = FirstId == 0 ? Row.Id : FirstId;
			GreatestId = std::max(GreatestId, Row.Id);
		}
	}
	const bool bOtherSelection = FirstId > LastId;
	LastId = GreatestId;
	const UClass* Class = FindCommonClass(*GEditor->GetSelectedActors());
	Tree.Read(Categories, Class ? FWindowText::ToQt(Class->GetFName()) : QString());
	List->ShowLines();
	if (bOtherSelection)
	{
		List->verticalScrollBar()->setValue(0);
	}
	ShowMessage();
}

void FDetailsView::ShowTitle()
{
	const USelection& Selection = *GEditor->GetSelectedActors();
	const UObject* First = Selection.GetSelectedObject(0);
	QString Text;
	if (Selection.Num() == 1)
	{
		Text = FWindowText::ToQt(First->GetName());
	}
	else if (Selection.Num() > 1)
	{
		Text = QStringLiteral("%1 actors selected").arg(Selection.Num());
	}
	if (TitleText != Text)
	{
		TitleText = Text;
		Title->setToolTip(Text);
		Title->setAccessibleName(Text);
		const QIcon ClassIcon = First ? FWindowImages::GetClassIcon(FindCommonClass(Selection)) : QIcon();
		Icon->setPixmap(ClassIcon.pixmap(QSize(16, 16), devicePixelRatioF()));
		Icon->setVisible(!Text.isEmpty());
		Title->setVisible(!Text.isEmpty());
		resizeEvent(nullptr);
	}
}

void FDetailsView::resizeEvent(QResizeEvent*)
{
	Title->setText(QFontMetrics(Title->font()).elidedText(TitleText, Qt::ElideRight, std::max(0, width() - 40)));
}

QString FDetailsView::GetMessage() const
{
	if (GEditor->GetSelectedActors()->Num() == 0)
	{
		return QStringLiteral("Select an actor to see its details.");
	}
	if (Tree.GetItems().empty())
	{
		return QStringLiteral("Nothing to show.");
	}
	return List->GetNumLines() == 0 ? QStringLiteral("No property matches the search.") : QString();
}

void FDetailsView::ShowMessage()
{
	const QString Text = GetMessage();
	Message->setText(Text);
	Message->setVisible(!Text.isEmpty());
	List->setVisible(Text.isEmpty());
}

void FDetailsView::Reset(int32 Id)
{
	for (const FDetailsItem& Item : Tree.GetItems())
	{
		const TSharedPtr<IPropertyHandle> Handle = Item.Id == Id ? Item.Handle.Pin() : nullptr;
		if (Handle.IsValid() && FDetailsReset::Reset(*Handle))
		{
			Context.Say(QStringLiteral("Reset %1").arg(Item.Name));
		}
	}
	bDue = true;
}

bool FDetailsView::eventFilter(QObject* Object, QEvent* Event)
{
	switch (Event->type())
	{
		case QEvent::KeyPress:
		case QEvent::KeyRelease:
		case QEvent::MouseButtonPress:
		case QEvent::MouseButtonRelease:
			break;
		default:
			return false;
	}
	// Lists that hang out of the panel are windows of their own, but belong to it.
	for (const QObject* Owner = Object; Owner && !bDue; Owner = Owner->parent())
	{
		bDue = Owner == this;
	}
	return false;
}

bool FDetailsView::focusNextPrevChild(bool bNext)
{
	QWidget* From = QApplication::focusWidget();
	if (FFocusSync::IsFromEngine() || !From || !isAncestorOf(From))
	{
		return !FFocusSync::IsFromEngine() && FPanel::focusNextPrevChild(bNext);
	}
	std::vector<QWidget*> Stops = List->FindStops(From);
	Stops.insert(Stops.begin(), Search);
	const auto Current = std::find(Stops.begin(), Stops.end(), From);
	const auto Index = Current - Stops.begin() + (bNext ? 1 : -1);
	const bool bInside = Current != Stops.end() && Index >= 0 && Index < static_cast<std::ptrdiff_t>(Stops.size());
	QWidget* Next = bInside ? Stops[static_cast<size_t>(Index)] : From;
	// Qt's order is that in which widgets were made: it only tells where the panel ends.
	while (!bInside && (Next == From || isAncestorOf(Next) || !CanTakeTab(Next)))
	{
		Next = bNext ? Next->nextInFocusChain() : Next->previousInFocusChain();
		if (Next == From)
		{
			Next = bNext ? Stops.front() : Stops.back();
			break;
		}
	}
	Next->setFocus(bNext ? Qt::TabFocusReason : Qt::BacktabFocusReason);
	if (List->widget()->isAncestorOf(Next))
	{
		List->ensureWidgetVisible(Next, 0, 4);
		List->PollSeen(false);
	}
	return true;
}
