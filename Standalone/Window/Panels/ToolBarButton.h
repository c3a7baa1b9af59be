// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** A button of the level editor's toolbar: a large icon, its caption below. */
class FToolBarButton : public QToolButton
{
public:
	/** Units. */
	static constexpr int IconSize = 40;

	/** @param bInOpensMenu whether it shows an arrow, and the arrow keys that point down press it as well. */
	FToolBarButton(const QString& Caption, const QIcon& Icon, bool bInOpensMenu, QWidget* Parent = nullptr);

	QSize sizeHint() const override;

protected:
	void keyPressEvent(QKeyEvent* Event) override;
	void initStyleOption(QStyleOptionToolButton* Option) const override;

private:
	bool bOpensMenu;
};
