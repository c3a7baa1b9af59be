// Copyright Corvane. MIT License.
#include "Leaves/ImageLeaf.h"

#include "WindowImages.h"
#include "WindowText.h"

#include "Styling/SlateBrush.h"
#include "Widgets/Images/SImage.h"

FImageLeaf::FImageLeaf(const TSharedRef<SImage>& Image, QWidget* Parent) : FLeaf(Image, new QLabel(Parent))
{
	GetQtWidget()->setAttribute(Qt::WA_TransparentForMouseEvents);
	static_cast<QLabel*>(GetQtWidget())->setScaledContents(true);
}

void FImageLeaf::Show(SWidget& Shown, const FPlace& Place)
{
	const FSlateBrush* Brush = static_cast<SImage&>(Shown).GetImage();
	const QString File = Brush ? FWindowText::ToQt(Brush->GetResourceName()) : QString();
	const qreal Ratio = GetQtWidget()->devicePixelRatioF();
	if (File != LastFile || Place.Rect.size() != LastSize || Ratio != LastRatio)
	{
		LastFile = File;
		LastSize = Place.Rect.size();
		LastRatio = Ratio;
		static_cast<QLabel*>(GetQtWidget())->setPixmap(FWindowImages::Get(Brush, LastSize, Ratio));
	}
}
