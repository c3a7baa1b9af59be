// Copyright Corvane. MIT License.
#include "Leaves/ButtonLeaf.h"

#include "DetailsRow.h"
#include "Leaves/LeafEvents.h"
#include "WindowText.h"
#include "Widgets/Input/SButton.h"

FButtonLeaf::FButtonLeaf(const TSharedRef<SButton>& Button, QWidget* Parent) : FLeaf(Button, new QPushButton(Parent))
{
	QPushButton& Plate = static_cast<QPushButton&>(*GetQtWidget());
	// A click moves the focus, and so has a box commit.
	Plate.setFocusPolicy(Qt::StrongFocus);
	Plate.setAutoDefault(false);
	new FLeafEvents(Button, &Plate, FLeafEvents::Pointer | FLeafEvents::PressKeys);
}

void FButtonLeaf::Show(SWidget& Shown, const FPlace& Place)
{
	QString Name = FWindowText::ToQt(FDetailsRow::FindText(Shown.AsShared()));
	if (Name.isEmpty())
	{
		Name = Place.Label;
	}
	if (GetQtWidget()->accessibleName() != Name)
	{
		GetQtWidget()->setAccessibleName(Name);
	}
}
