// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <memory>

#include "EditorView.h"
#include "WindowContext.h"

class FMainWindow;

/** Shows the editor in a main window. The toolkit's application object comes and goes with it, unless there is one. */
class FWindowView final : public IEditorView
{
public:
	/** @return null with one line, for a person without a display. */
	static std::unique_ptr<FWindowView> Make(EEditorViewUse Use, std::string& OutError);

	~FWindowView() override;

	void Attach(FStandaloneEditor& Editor) override;
	void Detach() override;
	void Update() override;
	void Run(const std::string& LevelFile) override;
	bool SaveScreenshot(const std::string& File, const std::string& Tab, std::string& OutError) override;

	/** Null while no editor is attached. */
	FMainWindow* GetWindow() const { return Window.get(); }

private:
	explicit FWindowView(EEditorViewUse InUse) : Use(InUse) {}
	/** One frame for a person: a step of the editor, then the window follows. */
	void Step();

	EEditorViewUse Use;
	std::unique_ptr<QApplication> Application;
	std::unique_ptr<FWindowContext> Context;
	std::unique_ptr<FMainWindow> Window;
};
