// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include "MainWindow.h"
#include "WindowStyle.h"
#include "WindowView.h"

#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>

// first-frame empty|editor: a fresh process up to the first frame of a window, which is what a user waits for. Prints
// the nanoseconds of each part since the last one: toolkit, engine, window, frame.

namespace
{
	using FClock = std::chrono::steady_clock;

	class FParts
	{
	public:
		void End(const char* Part)
		{
			const FClock::time_point Now = FClock::now();
			std::printf("%s %lld\n", Part,
				static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(Now - Last).count()));
			Last = Now;
		}

	private:
		FClock::time_point Last = FClock::now();
	};

	/** A main window in the editor's style, and nothing in it. */
	int ShowEmptyWindow(int ArgumentCount, char** Arguments)
	{
		FParts Parts;
		QApplication Application(ArgumentCount, Arguments);
		FWindowStyle::Apply(Application);
		Parts.End("toolkit");
		Parts.End("engine");
		QMainWindow Window;
		Window.resize(1600, 900);
		Window.menuBar()->addMenu(QStringLiteral("File"));
		Window.statusBar()->showMessage(QStringLiteral("Ready"));
		Window.show();
		Parts.End("window");
		QCoreApplication::processEvents();
		Parts.End("frame");
		return 0;
	}

	int ShowEditor()
	{
		FParts Parts;
		std::string Error;
		const std::unique_ptr<FWindowView> View = FWindowView::Make(EEditorViewUse::Script, Error);
		Parts.End("toolkit");
		FStandaloneEditor Editor;
		if (!View || !Editor.Start(FStandaloneEditorOptions(), Error))
		{
			std::fprintf(stderr, "%s\n", Error.c_str());
			return 1;
		}
		Parts.End("engine");
		View->Attach(Editor);
		Parts.End("window");
		Editor.Tick();
		View->Update();
		Parts.End("frame");
		View->Detach();
		return 0;
	}
}

int main(int ArgumentCount, char** Arguments)
{
	qputenv("QT_QPA_PLATFORM", "offscreen");
	const bool bEmpty = ArgumentCount == 2 && std::strcmp(Arguments[1], "empty") == 0;
	return bEmpty ? ShowEmptyWindow(ArgumentCount, Arguments) : ShowEditor();
}
