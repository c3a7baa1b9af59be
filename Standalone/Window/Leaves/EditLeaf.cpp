// Copyright Corvane. MIT License.
#include "Leaves/EditLeaf.h"

#include "Leaves/LeafEvents.h"
#include "WindowStyle.h"
#include "WindowText.h"

#include <limits>

#include "Widgets/Input/SEditableTextBox.h"

FEditLeaf::FEditLeaf(const TSharedRef<SEditableTextBox>& Box, QWidget* Parent) : FLeaf(Box, new QLineEdit(Parent))
{
	QLineEdit& Line = static_cast<QLineEdit&>(*GetQtWidget());
	Line.setMaxLength(std::numeric_limits<int>::max());
	Line.setTextMargins(1, 0, 1, 0);
	// The next line of the engine's box is as high as it says.
	Line.setMinimumSize(0, 0);
	new FLeafEvents(Box, &Line, FLeafEvents::Pointer | FLeafEvents::EnterKey);
	// Not textChanged: that tells of what was set as well.
	QObject::connect(&Line, &QLineEdit::textEdited, &Line, [this](const QString& NewText) { OnEdited(NewText); });
}

void FEditLeaf::OnEdited(const QString& NewText)
{
	const TSharedPtr<SWidget> Pinned = GetWidget();
	if (Pinned.IsValid())
	{
		SEditableTextBox& Box = static_cast<SEditableTextBox&>(*Pinned);
		Box.EditText(FWindowText::FromQt(NewText));
		// What the box did not take is gone from the line, too.
		Known = NewText;
		Follow(Box);
	}
}

void FEditLeaf::Follow(const SEditableTextBox& Box)
{
	const QString Text = FWindowText::ToQt(Box.GetText());
	if (Text != Known)
	{
		Known = Text;
		static_cast<QLineEdit&>(*GetQtWidget()).setText(Text);
	}
}

void FEditLeaf::Show(SWidget& Shown, const FPlace& Place)
{
	const SEditableTextBox& Box = static_cast<SEditableTextBox&>(Shown);
	QLineEdit& Line = static_cast<QLineEdit&>(*GetQtWidget());
	if (!bHasFont)
	{
		bHasFont = true;
		Line.setFont(FWindowStyle::GetFont(Box.GetFont()));
	}
	Follow(Box);
	if (Line.accessibleName() != Place.Label)
	{
		Line.setAccessibleName(Place.Label);
	}
}
