// Copyright Corvane. MIT License.
#include "DetailsTree.h"

#include "PropertyHandle.h"
#include "WindowText.h"

using EKind = FDetailsItem::EKind;

void FDetailsTree::Read(const std::vector<FDetailsPanel::FCategory>& InCategories, const QString& ClassName)
{
	Items.clear();
	Categories.clear();
	QHash<QString, int> NumOfName;
	for (const FDetailsPanel::FCategory& Category : InCategories)
	{
		// An actor's category and its component's may be called alike.
		const QString Name = FWindowText::ToQt(Category.Name);
		ReadCategory(Category, QStringLiteral("%1/%2#%3").arg(ClassName, Name).arg(NumOfName[Name]++));
	}
	Found.assign(Items.size(), FFound());
	for (const int Index : Categories)
	{
		Search(Index);
	}
}

void FDetailsTree::ReadCategory(const FDetailsPanel::FCategory& Category, const QString& Key)
{
	RowsById.clear();
	GroupsByIndex.clear();
	Advanced = -1;
	const int Top = Add(-1, EKind::Category, Key, FWindowText::ToQt(Category.Name), true);
	Categories.push_back(Top);
	for (const FDetailsRow& Row : Category.Rows)
	{
		const auto Above = RowsById.find(Row.ParentId);
		if (Above != RowsById.end())
		{
			ReadRow(Row, Above->second, Key);
			continue;
		}
		const int Section = Row.bAdvanced ? FindAdvanced(Top) : Top;
		ReadRow(Row, Row.GroupIndex == INDEX_NONE ? Section : FindGroup(Section, Row), Key);
	}
}

int FDetailsTree::Add(int Parent, EKind Kind, const QString& Key, const QString& Name, bool bOpenAtFirst)
{
	FDetailsItem Item;
	Item.Kind = Kind;
	Item.Key = Key;
	Item.Name = Name;
	Item.Filter = Name;
	Item.bOpenAtFirst = bOpenAtFirst;
	const int Index = static_cast<int>(Items.size());
	if (Parent >= 0)
	{
		Items[Parent].Children.push_back(Index);
		// What is folded away stands as far left as what is not.
		Item.Depth = Items[Parent].Depth + (Items[Parent].Kind == EKind::Advanced ? 0 : 1);
	}
	Items.push_back(std::move(Item));
	return Index;
}

int FDetailsTree::FindAdvanced(int Category)
{
	if (Advanced < 0)
	{
		Advanced = Add(Category, EKind::Advanced, Items[Category].Key + QStringLiteral("/advanced"),
			QStringLiteral("Advanced"), false);
		// The word stands in no row.
		Items[Advanced].Filter.clear();
	}
	return Advanced;
}

int FDetailsTree::FindGroup(int Parent, const FDetailsRow& Row)
{
	const auto Known = GroupsByIndex.find(Row.GroupIndex);
	if (Known != GroupsByIndex.end())
	{
		return Known->second;
	}
	const QString Key = QStringLiteral("%1/group %2").arg(Items[Parent].Key).arg(Row.GroupIndex);
	const int Group = Add(Parent, EKind::Group, Key, FWindowText::ToQt(Row.Group), !Row.bGroupCollapsed);
	GroupsByIndex.emplace(Row.GroupIndex, Group);
	return Group;
}

void FDetailsTree::ReadRow(const FDetailsRow& Row, int Parent, const QString& Key)
{
	const QString Path = FWindowText::ToQt(Row.Path);
	const QString Name = FWindowText::ToQt(Row.GetName());
	const QString Own = Path.isEmpty() ? Items[Parent].Key + QLatin1Char('/') + Name : Path;
	const int Index = Add(Parent, EKind::Row, Key + QLatin1Char('/') + Own, Name, !Row.Node->GetInitiallyCollapsed());
	FDetailsItem& Item = Items[Index];
	Item.Id = Row.Id;
	Item.Filter = FWindowText::ToQt(Row.GetFilter());
	Item.Path = Path;
	Item.Value = Row.Widgets.ValueWidget;
	Item.Layout = Row.Widgets.ValueWidgetLayoutData;
	Item.Handle = Row.Value;
	Item.bReadOnly = Row.Property.IsValid() && Row.Property->IsEditConst();
	RowsById.emplace(Row.Id, Index);
}

void FDetailsTree::SetSearch(const QString& Text)
{
	Words = Text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
	Found.assign(Items.size(), FFound());
	for (const int Index : Categories)
	{
		Search(Index);
	}
}

bool FDetailsTree::Matches(const FDetailsItem& Item) const
{
	return !Words.isEmpty() &&
		std::all_of(Words.begin(), Words.end(),
			[&Item](const QString& Word) { return Item.Filter.contains(Word, Qt::CaseInsensitive); });
}

bool FDetailsTree::Search(int Index)
{
	FFound& Own = Found[Index];
	Own.bItself = Matches(Items[Index]);
	for (const int Child : Items[Index].Children)
	{
		Own.bBelow |= Search(Child);
	}
	return Own.bItself || Own.bBelow;
}

std::vector<int> FDetailsTree::FindShown() const
{
	std::vector<int> Shown;
	for (const int Index : Categories)
	{
		Show(Index, Words.isEmpty(), Shown);
	}
	return Shown;
}

void FDetailsTree::Show(int Index, bool bWithin, std::vector<int>& OutShown) const
{
	// What is called so stays whole, opened as the user left it.
	const bool bWhole = bWithin || Found[Index].bItself;
	if (!bWhole && !Found[Index].bBelow)
	{
		return;
	}
	OutShown.push_back(Index);
	if (IsOpen(Index))
	{
		for (const int Child : Items[Index].Children)
		{
			Show(Child, bWhole, OutShown);
		}
	}
}

bool FDetailsTree::IsOpen(int Index) const
{
	const FDetailsItem& Item = Items[Index];
	return Found[Index].bBelow || (Found[Index].bItself && !Item.IsRow()) || Opened.value(Item.Key, Item.bOpenAtFirst);
}

void FDetailsTree::SetOpen(int Index, bool bOpen)
{
	Opened[Items[Index].Key] = bOpen;
}
