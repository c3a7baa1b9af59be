// Copyright Corvane. MIT License.
#include "PlaceActors.h"

#include <algorithm>

#include "ActorEdits.h"
#include "EditorViewportClient.h"
#include "EditorViews.h"
#include "Framework/Application/SlateApplication.h"
#include "GameFramework/Actor.h"
#include "IPlacementModeModule.h"
#include "LevelProperties.h"
#include "Panels/ListNote.h"
#include "Panels/PanelText.h"
#include "Panels/SearchBox.h"
#include "Panels/ViewProjection.h"
#include "Standalone/PlacementPanel.h"
#include "Templates/Casts.h"
#include "WindowImages.h"

namespace
{
	/** Listing all classes costs more than a look at each frame may. Seconds. */
	constexpr double ReadInterval = 0.25;
	constexpr int CategoryWidth = 120;
	constexpr int IconSize = 24;

	/** In centimetres. */
	constexpr double DistanceAhead = 300.0;
	constexpr double DistanceToGround = 1000.0;
}

bool FPlaceActors::FItem::operator==(const FItem& Other) const
{
	return Name == Other.Name && Asset.PackageName == Other.Asset.PackageName &&
		Asset.AssetName == Other.Asset.AssetName;
}

bool FPlaceActors::FCategory::operator==(const FCategory& Other) const
{
	return Handle == Other.Handle && Name == Other.Name && bCustom == Other.bCustom && Items == Other.Items;
}

FPlaceActors::FPlaceActors(FWindowContext& InContext, QWidget* Parent)
	: FPanel(Parent),
	  Context(InContext),
	  SearchBox(new FSearchBox(QStringLiteral("Search classes"), this)),
	  CategoryList(new QListWidget(this)),
	  ItemList(new QListWidget(this)),
	  Note(new FListNote(*ItemList))
{
	setAccessibleName(QStringLiteral("Place Actors"));
	SetUpLists();
	LayOut();
	QObject::connect(SearchBox, &QLineEdit::textChanged, this, [this] { ShowItems(); });
	QObject::connect(SearchBox, &QLineEdit::returnPressed, this,
		[this]
		{
			// With one thing found there is nothing to choose.
			if (ShownItems.size() == 1)
			{
				Place(0);
			}
		});
	QObject::connect(CategoryList, &QListWidget::currentRowChanged, this,
		[this](int Row)
		{
			if (Row >= 0)
			{
				Chosen = Categories[static_cast<size_t>(Row)].Handle;
				ShowItems();
			}
		});
	QObject::connect(ItemList, &QListWidget::itemActivated, this,
		[this](const QListWidgetItem* Item) { Place(ItemList->row(Item)); });
}

void FPlaceActors::SetUpLists()
{
	CategoryList->setAccessibleName(QStringLiteral("Categories"));
	CategoryList->setFrameShape(QFrame::NoFrame);
	CategoryList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	CategoryList->setTextElideMode(Qt::ElideRight);
	// While a search goes through all of them, none is chosen.
	QPalette Unchosen = CategoryList->palette();
	Unchosen.setColor(QPalette::Disabled, QPalette::Highlight, Unchosen.color(QPalette::Base));
	Unchosen.setColor(
		QPalette::Disabled, QPalette::HighlightedText, Unchosen.color(QPalette::Disabled, QPalette::Text));
	CategoryList->setPalette(Unchosen);
	ItemList->setAccessibleName(QStringLiteral("Classes"));
	ItemList->setFrameShape(QFrame::NoFrame);
	ItemList->setIconSize(QSize(IconSize, IconSize));
	ItemList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	ItemList->setTextElideMode(Qt::ElideRight);
	ItemList->setUniformItemSizes(true);
	SearchBox->SetList(*ItemList);
}

void FPlaceActors::LayOut()
{
	auto* Column = new QVBoxLayout(this);
	Column->setContentsMargins(0, 0, 0, 0);
	Column->setSpacing(0);
	auto* Top = new QHBoxLayout;
	Top->setContentsMargins(4, 4, 4, 4);
	Top->addWidget(SearchBox);
	Column->addLayout(Top);
	auto* Lists = new QSplitter(Qt::Horizontal, this);
	Lists->addWidget(CategoryList);
	Lists->addWidget(ItemList);
	Lists->setChildrenCollapsible(false);
	Lists->setStretchFactor(1, 1);
	Lists->setSizes({CategoryWidth, 2 * CategoryWidth});
	Column->addWidget(Lists, 1);
}

FPlaceActors::FCategory FPlaceActors::Read(const FPlacementCategoryInfo& Info)
{
	FCategory Category;
	Category.Handle = Info.UniqueHandle;
	Category.Name = FPanelText::OneLine(Info.DisplayName.ToString());
	Category.bCustom = static_cast<bool>(Info.CustomGenerator);
	if (!Category.bCustom)
	{
		for (const TSharedPtr<FPlaceableItem>& Item : FPlacementPanel::GetShownItems(Info.UniqueHandle))
		{
			Category.Items.push_back({FPanelText::OneLine(Item->DisplayName.ToString()), Item->AssetData});
		}
	}
	return Category;
}

std::vector<FPlaceActors::FCategory> FPlaceActors::ReadCategories()
{
	std::vector<FCategory> Read;
	// Looking must not load it.
	if (const auto* Module = FModuleManager::GetModulePtr<IPlacementModeModule>("PlacementMode"))
	{
		TArray<FPlacementCategoryInfo> Infos;
		Module->GetSortedCategories(Infos);
		for (const FPlacementCategoryInfo& Info : Infos)
		{
			Read.push_back(FPlaceActors::Read(Info));
		}
	}
	return Read;
}

void FPlaceActors::Poll()
{
	const double Time = FSlateApplication::Get().GetCurrentTime();
	const bool bLoaded = FModuleManager::Get().IsModuleLoaded("PlacementMode");
	const bool bDue = ReadTime < 0.0 || Time < ReadTime || Time - ReadTime >= ReadInterval;
	if (!bDue && bLoaded == bWasLoaded)
	{
		return;
	}
	const bool bFirst = ReadTime < 0.0;
	ReadTime = Time;
	bWasLoaded = bLoaded;
	std::vector<FCategory> Now = ReadCategories();
	if (bFirst || !(Now == Categories))
	{
		Categories = std::move(Now);
		ShowCategories();
		ShowItems();
	}
}

void FPlaceActors::ShowCategories()
{
	const QSignalBlocker Blocker(CategoryList);
	CategoryList->clear();
	int Current = Categories.empty() ? -1 : 0;
	for (size_t Index = 0; Index < Categories.size(); ++Index)
	{
		auto* Item = new QListWidgetItem(Categories[Index].Name, CategoryList);
		Item->setSizeHint(QSize(CategoryWidth, 26));
		Item->setToolTip(Categories[Index].Name.toHtmlEscaped());
		Current = Categories[Index].Handle == Chosen ? static_cast<int>(Index) : Current;
	}
	CategoryList->setCurrentRow(Current);
}

std::vector<FPlaceActors::FItem> FPlaceActors::FindItems() const
{
	const QString Search = SearchBox->text().trimmed();
	std::vector<FItem> Found;
	for (size_t Index = 0; Index < Categories.size(); ++Index)
	{
		if (Search.isEmpty() && static_cast<int>(Index) != CategoryList->currentRow())
		{
			continue;
		}
		for (const FItem& Item : Categories[Index].Items)
		{
			// What stands in several categories is found once.
			const bool bKnown = !Search.isEmpty() && std::find(Found.begin(), Found.end(), Item) != Found.end();
			if (!bKnown && FPanelText::Matches(Search, {Item.Name}))
			{
				Found.push_back(Item);
			}
		}
	}
	return Found;
}

QString FPlaceActors::GetReasonForNone() const
{
	if (!SearchBox->text().trimmed().isEmpty())
	{
		return QStringLiteral("No matching classes");
	}
	const int Row = CategoryList->currentRow();
	if (Row < 0)
	{
		return QStringLiteral("Nothing can be placed: the module \"PlacementMode\" is not loaded");
	}
	const FCategory& Category = Categories[static_cast<size_t>(Row)];
	return Category.bCustom ? Category.Name : QStringLiteral("This category is empty");
}

void FPlaceActors::ShowItems()
{
	CategoryList->setEnabled(SearchBox->text().trimmed().isEmpty());
	const int Row = ItemList->currentRow();
	const FItem Current = Row >= 0 ? ShownItems[static_cast<size_t>(Row)] : FItem();
	ShownItems = FindItems();
	ItemList->clear();
	for (size_t Index = 0; Index < ShownItems.size(); ++Index)
	{
		const FItem& Shown = ShownItems[Index];
		auto* Item = new QListWidgetItem(FWindowImages::GetClassIcon(FindClass(Shown)), Shown.Name, ItemList);
		Item->setSizeHint(QSize(CategoryWidth, IconSize + 8));
		Item->setToolTip(QStringLiteral("%1: double click or Enter places one").arg(Shown.Name).toHtmlEscaped());
		if (Row >= 0 && Shown == Current)
		{
			ItemList->setCurrentRow(static_cast<int>(Index));
		}
	}
	Note->Show(ShownItems.empty() ? GetReasonForNone() : QString());
}

UClass* FPlaceActors::FindClass(const FItem& Item)
{
	UClass* Class = Cast<UClass>(Item.Asset.GetAsset());
	return Class && FLevelProperties::FindActorClass(Class->GetName()) == Class ? Class : nullptr;
}

FVector FPlaceActors::FindPlace(const FVector& ViewLocation, const FRotator& ViewRotation)
{
	const FPoint3 Eye(ViewLocation);
	const FPoint3 Forward = FViewAxes(ViewRotation).Forward;
	if (!Eye.IsFinite() || !Forward.IsFinite())
	{
		return FVector();
	}
	const double ToGround = -Eye.Z / Forward.Z;
	const bool bOnGround = ToGround > 0.0 && ToGround <= DistanceToGround;
	FPoint3 Place = Eye + Forward * (bOnGround ? ToGround : DistanceAhead);
	Place.Z = bOnGround ? 0.0 : Place.Z;
	return Place.ToVector();
}

void FPlaceActors::Place(int Row)
{
	const FItem Item = ShownItems[static_cast<size_t>(Row)];
	UClass* Class = FindClass(Item);
	if (!Class)
	{
		Context.Say(QStringLiteral("%1 can't be placed: there is no such class of actors any more").arg(Item.Name));
		return;
	}
	const TArray<FEditorViewportClient*> Clients = FEditorViews::FindLevelClients();
	// An actor that has no place in the world stands at zero all the same.
	const FVector Location =
		Clients.Num() > 0 ? FindPlace(Clients[0]->GetViewLocation(), Clients[0]->GetViewRotation()) : FVector();
	const AActor* Actor = FActorEdits::Place(Class, Location, FRotator());
	check(Actor != nullptr);
	Context.Say(QStringLiteral("Placed %1").arg(FPanelText::OneLine(Actor->GetName())));
}
