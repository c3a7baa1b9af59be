// Copyright Corvane. MIT License.
#include "PanelText.h"

#include "WindowText.h"

#include <algorithm>

QString FPanelText::OneLine(const FString& Text)
{
	QString Line = FWindowText::ForCaption(Text);
	return Line.contains(u'&') ? Line.replace(QStringLiteral("&&"), QStringLiteral("&")) : Line;
}

bool FPanelText::Matches(const QString& Search, std::initializer_list<QStringView> Texts)
{
	for (const QStringView Word : QStringView(Search).split(u' ', Qt::SkipEmptyParts))
	{
		const auto HasWord = [Word](QStringView Text) { return Text.contains(Word, Qt::CaseInsensitive); };
		if (std::none_of(Texts.begin(), Texts.end(), HasWord))
		{
			return false;
		}
	}
	return true;
}
