// Copyright Corvane. MIT License.
#include "Leaves/CheckLeaf.h"

#include "DetailsRow.h"
#include "Leaves/LeafEvents.h"
#include "WindowText.h"
#include "Widgets/Input/SCheckBox.h"

namespace
{
	/** Shows the state that it is told; a press changes nothing by itself. */
	class FToldCheckBox final : public QCheckBox
	{
	public:
		using QCheckBox::QCheckBox;

	protected:
		void nextCheckState() override {}
		bool hitButton(const QPoint& Position) const override { return rect().contains(Position); }
	};

	Qt::CheckState GetState(ECheckBoxState State)
	{
		switch (State)
		{
			case ECheckBoxState::Checked:
				return Qt::Checked;
			case ECheckBoxState::Undetermined:
				return Qt::PartiallyChecked;
			default:
				return Qt::Unchecked;
		}
	}
}

FCheckLeaf::FCheckLeaf(const TSharedRef<SCheckBox>& CheckBox, QWidget* Parent)
	: FLeaf(CheckBox, new FToldCheckBox(Parent))
{
	QCheckBox& Box = static_cast<QCheckBox&>(*GetQtWidget());
	Box.setFocusPolicy(Qt::StrongFocus);
	new FLeafEvents(CheckBox, &Box, FLeafEvents::Pointer | FLeafEvents::PressKeys);
}

void FCheckLeaf::Show(SWidget& Shown, const FPlace& Place)
{
	QCheckBox& Box = static_cast<QCheckBox&>(*GetQtWidget());
	const Qt::CheckState State = GetState(static_cast<SCheckBox&>(Shown).GetCheckedState());
	if (Box.checkState() != State)
	{
		Box.setCheckState(State);
	}
	QString Name = FWindowText::ToQt(FDetailsRow::FindText(Shown.AsShared()));
	if (Name.isEmpty())
	{
		Name = Place.Label;
	}
	if (Box.accessibleName() != Name)
	{
		Box.setAccessibleName(Name);
	}
}
