// Copyright Corvane. MIT License.
#include "ContentBrowser.h"

#include "Panels/ListNote.h"
#include "Panels/SearchBox.h"
#include "StandaloneEditorEvents.h"

namespace
{
	constexpr int ThumbnailSize = 72;
	constexpr int TileWidth = 104;
	constexpr int TileHeight = 108;
}

FContentBrowser::FContentBrowser(FWindowContext& /*Context*/, QWidget* Parent)
	: FPanel(Parent),
	  SearchBox(new FSearchBox(QStringLiteral("Search assets"), this)),
	  View(new QListView(this)),
	  Note(new FListNote(*View)),
	  Path(new QLabel(this)),
	  Model(new FAssetModel(this))
{
	setAccessibleName(QStringLiteral("Content Browser"));
	SetUpView();
	SearchBox->SetList(*View);
	LayOut();
	QObject::connect(SearchBox, &QLineEdit::textChanged, this,
		[this](const QString& Text)
		{
			Model->SetSearch(Text);
			ShowPath();
		});
	QObject::connect(View->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { ShowPath(); });
	SyncHandle = FStandaloneEditorEvents::ContentSync.AddLambda(
		[this](const TArray<UObject*>& Objects, bool bToFront)
		{
			ToShow.assign(Objects.begin(), Objects.end());
			bSync = true;
			bFront |= bToFront;
		});
	ShowPath();
}

FContentBrowser::~FContentBrowser()
{
	FStandaloneEditorEvents::ContentSync.Remove(SyncHandle);
}

void FContentBrowser::SetUpView()
{
	View->setModel(Model);
	View->setAccessibleName(QStringLiteral("Assets"));
	View->setViewMode(QListView::IconMode);
	View->setMovement(QListView::Static);
	View->setResizeMode(QListView::Adjust);
	View->setSelectionMode(QAbstractItemView::ExtendedSelection);
	View->setEditTriggers(QAbstractItemView::NoEditTriggers);
	View->setIconSize(QSize(ThumbnailSize, ThumbnailSize));
	View->setGridSize(QSize(TileWidth, TileHeight));
	View->setUniformItemSizes(true);
	View->setTextElideMode(Qt::ElideMiddle);
	View->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
	View->setFrameShape(QFrame::NoFrame);
}

void FContentBrowser::LayOut()
{
	Path->setAccessibleName(QStringLiteral("Path"));
	Path->setTextFormat(Qt::PlainText);
	Path->setContentsMargins(6, 2, 6, 4);
	// A long path is cut, it does not widen the panel.
	Path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
	Path->setTextInteractionFlags(Qt::TextSelectableByMouse);
	auto* Column = new QVBoxLayout(this);
	Column->setContentsMargins(0, 0, 0, 0);
	Column->setSpacing(0);
	auto* Top = new QHBoxLayout;
	Top->setContentsMargins(4, 4, 4, 4);
	Top->addWidget(SearchBox);
	Column->addLayout(Top);
	Column->addWidget(View, 1);
	Column->addWidget(Path);
}

void FContentBrowser::Poll()
{
	if (Model->Update())
	{
		ShowPath();
	}
	if (bSync)
	{
		bSync = false;
		FollowSync();
	}
	if (bFront)
	{
		bFront = false;
		OnFrontRequested();
	}
}

void FContentBrowser::FollowSync()
{
	// What a search hides can't be shown.
	for (const TWeakObjectPtr<UObject>& Asset : ToShow)
	{
		if (Asset.IsValid() && Model->FindRow(Asset.Get()) < 0)
		{
			SearchBox->clear();
		}
	}
	QItemSelection Wanted;
	for (const TWeakObjectPtr<UObject>& Asset : ToShow)
	{
		const int Row = Model->FindRow(Asset.Get());
		if (Row >= 0)
		{
			Wanted.select(Model->index(Row), Model->index(Row));
		}
	}
	ToShow.clear();
	if (!Wanted.isEmpty())
	{
		const QModelIndex First = Wanted.first().topLeft();
		View->selectionModel()->setCurrentIndex(First, QItemSelectionModel::NoUpdate);
		View->selectionModel()->select(Wanted, QItemSelectionModel::ClearAndSelect);
		View->scrollTo(First);
	}
}

void FContentBrowser::ShowPath()
{
	const QModelIndexList Selected = View->selectionModel()->selectedRows();
	QString Text;
	if (Selected.size() == 1)
	{
		Text = Model->GetPath(Selected.first().row());
	}
	else if (!Selected.isEmpty())
	{
		Text = QStringLiteral("%1 assets selected").arg(Selected.size());
	}
	else if (Model->GetNumAssets() > 0)
	{
		const int Number = Model->GetNumAssets();
		Text = Number == 1 ? QStringLiteral("1 asset") : QStringLiteral("%1 assets").arg(Number);
	}
	Path->setText(Text);
	Path->setToolTip(Selected.size() == 1 ? Text.toHtmlEscaped() : QString());
	const QString Reason =
		Model->GetNumAssets() == 0 ? QStringLiteral("No assets yet") : QStringLiteral("No matching assets");
	Note->Show(Model->rowCount() == 0 ? Reason : QString());
}
