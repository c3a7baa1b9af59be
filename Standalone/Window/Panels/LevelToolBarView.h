// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "EditorMenus.h"
#include "Panels/MultiBoxMenu.h"
#include "Panels/Panel.h"

class FToolBarButton;
struct FWindowContext;

/** The level editor's toolbar: the editor's own buttons and those of modules, a line between two sections. */
class FLevelToolBarView : public FPanel
{
public:
	explicit FLevelToolBarView(FWindowContext& InContext, QWidget* Parent = nullptr);

	void Poll() override;

	/** The button of that caption, or null. */
	QToolButton* FindButton(const QString& Caption) const;
	/** The menu that is open, or null. */
	QMenu* GetMenu() const;
	/** To be called before what the toolbar shows goes. */
	void CloseMenu();

private:
	/** What a button is made of; as long as this stays, the button stays. */
	struct FLook
	{
		FName Section;
		FName Name;
		FName IconStyle;
		FName IconBrush;
		FString Label;
		bool bIsCombo = false;

		bool operator==(const FLook& Other) const;
	};

	void DressExtension();
	static std::vector<FLook> GetLooks(const std::vector<FEditorMenus::FButton>& Entries);
	void Rebuild(const std::vector<FEditorMenus::FButton>& Entries, std::vector<FLook>&& NewLooks);
	FToolBarButton* MakeButton(const FEditorMenus::FButton& Entry, const FLook& Look);
	static void Refresh(FToolBarButton& Button, const FToolMenuEntry& Entry);
	void Press(size_t Index);
	void OpenMenu(size_t Index);

	FWindowContext& Context;
	QToolBar* Bar;
	std::vector<FLook> Looks;
	/** One for each look. */
	std::vector<FToolBarButton*> Buttons;
	QPointer<FMultiBoxMenu> Menu;
};
