// Copyright Corvane. MIT License.
#include "Leaves/ComboLeaf.h"

#include "DetailsRow.h"
#include "Leaves/LeafEvents.h"
#include "WindowText.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/Input/SComboButton.h"

namespace
{
	constexpr int MostOptionsInSight = 16;

	/** Opens the engine's list with its own, and tells it of the choice. */
	class FListCombo final : public QComboBox
	{
	public:
		FListCombo(const TSharedRef<SComboButton>& InCombo, QWidget* Parent) : QComboBox(Parent), Combo(InCombo)
		{
			setFocusPolicy(Qt::StrongFocus);
			setMaxVisibleItems(MostOptionsInSight);
			setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
			QObject::connect(this, &QComboBox::activated, this, [this](int Index) { Choose(Index); });
		}

		void showPopup() override
		{
			const TSharedPtr<SComboButton> Shown = Combo.Pin();
			if (!Shown.IsValid())
			{
				return;
			}
			FSlateApplication::Get().SetKeyboardFocus(Shown, EFocusCause::Mouse);
			Shown->SetIsOpen(true);
			Fill(*Shown);
			QComboBox::showPopup();
		}

		void hidePopup() override
		{
			QComboBox::hidePopup();
			const TSharedPtr<SComboButton> Shown = Combo.Pin();
			if (Shown.IsValid())
			{
				Shown->SetIsOpen(false);
			}
		}

		/** While the list is open its options may change. */
		void Follow(SComboButton& Shown)
		{
			if (!view()->isVisible())
			{
				return;
			}
			if (!Shown.IsOpen())
			{
				QComboBox::hidePopup();
			}
			else if (GetOptions(Shown) != Options)
			{
				Fill(Shown);
			}
		}

	protected:
		void paintEvent(QPaintEvent*) override
		{
			// The frame and the arrow only: the content is the engine's.
			QStylePainter Painter(this);
			QStyleOptionComboBox Option;
			initStyleOption(&Option);
			Option.currentText.clear();
			Painter.drawComplexControl(QStyle::CC_ComboBox, Option);
		}

		void wheelEvent(QWheelEvent* Event) override
		{
			// Who scrolls a panel of combo boxes does not mean to choose.
			Event->ignore();
		}

	private:
		static QStringList GetOptions(SComboButton& Shown)
		{
			QStringList Result;
			for (int32 Index = 0; Index < Shown.GetNumOptions(); ++Index)
			{
				Result.push_back(FWindowText::ToQt(FDetailsRow::FindText(Shown.GenerateOption(Index))));
			}
			return Result;
		}

		void Fill(SComboButton& Shown)
		{
			const QSignalBlocker Blocker(this);
			Options = GetOptions(Shown);
			clear();
			addItems(Options);
			setCurrentIndex(Shown.GetSelectedOption());
		}

		void Choose(int Index)
		{
			const TSharedPtr<SComboButton> Shown = Combo.Pin();
			if (Shown.IsValid())
			{
				Shown->ChooseOption(Index, ESelectInfo::OnMouseClick);
			}
		}

		TWeakPtr<SComboButton> Combo;
		QStringList Options;
	};
}

FComboLeaf::FComboLeaf(const TSharedRef<SComboButton>& Combo, QWidget* Parent)
	: FLeaf(Combo, new FListCombo(Combo, Parent))
{
	// Qt's own press opens the list; the engine's would close it again.
	new FLeafEvents(Combo, GetQtWidget(), FLeafEvents::ArrowKeys);
}

void FComboLeaf::Show(SWidget& Shown, const FPlace& Place)
{
	FListCombo& Combo = static_cast<FListCombo&>(*GetQtWidget());
	Combo.Follow(static_cast<SComboButton&>(Shown));
	// The row's name and what is chosen, as for a box that holds its text itself.
	const QString Value = FWindowText::ToQt(FDetailsRow::FindText(Shown.AsShared()));
	const QString Name = Place.Label.isEmpty() ? Value : Place.Label + QStringLiteral(": ") + Value;
	if (Combo.accessibleName() != Name)
	{
		Combo.setAccessibleName(Name);
	}
}
