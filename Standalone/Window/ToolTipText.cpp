// Copyright Corvane. MIT License.
#include "ToolTipText.h"

#include "WindowText.h"

QString FToolTipText::Make(const FString& Text)
{
	constexpr int MaxLength = 500;
	if (Text.IsEmpty())
	{
		return QString();
	}
	QString Shown = FWindowText::ToQt(Text.Left(MaxLength));
	if (Text.Len() > MaxLength)
	{
		Shown += QChar(0x2026);
	}
	return QStringLiteral("<qt>%1</qt>").arg(Shown.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
}
