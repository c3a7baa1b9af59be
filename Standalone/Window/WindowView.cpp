// Copyright Corvane. MIT License.
#include "WindowView.h"

#include "FileAccess.h"
#include "MainWindow.h"
#include "WindowStyle.h"

#include <filesystem>

#include "Framework/Application/SlateApplication.h"
#include "ErrorText.h"
#include "MessageBoxes.h"
#include "QtRenderer.h"
#include "Standalone/SlateNullRenderer.h"
#include "StandardOutput.h"

namespace
{
	constexpr int MillisecondsPerFrame = 16;

	/** The platform without a display, on a screen that holds the whole window. */
	QByteArray GetOffscreenPlatform()
	{
		const std::filesystem::path Folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
		return QByteArrayLiteral("offscreen:configfile=") +
			QByteArray::fromStdString((Folder / "OffscreenScreen.json").string());
	}

	bool HasDisplay()
	{
		return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qgetenv("DISPLAY").isEmpty() ||
			!qgetenv("WAYLAND_DISPLAY").isEmpty();
	}

	/** What the toolkit has to say, but for what it lacks of display and fonts, which nobody asked about. */
	void PrintMessage(QtMsgType, const QMessageLogContext&, const QString& Message)
	{
		const bool bNoNews = Message.startsWith(QStringLiteral("This plugin does not support")) ||
			Message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")) ||
			Message.startsWith(QStringLiteral("OpenType support missing"));
		if (!bNoNews)
		{
			FStandardOutput::WriteError(FErrorText::OneLine(Message.toStdString()));
		}
	}

	/** @return null where somebody else has made one, as a test program has. */
	std::unique_ptr<QApplication> MakeApplication()
	{
		if (QCoreApplication::instance())
		{
			return nullptr;
		}
		static int ArgumentCount = 1;
		static char Name[] = "quillon-editor";
		static char* Arguments[] = {Name, nullptr};
		qInstallMessageHandler(&PrintMessage);
		auto Application = std::make_unique<QApplication>(ArgumentCount, Arguments);
		QApplication::setApplicationName(QStringLiteral("QuillonEditor"));
		QApplication::setOrganizationName(QStringLiteral("Corvane"));
		return Application;
	}
}

std::unique_ptr<FWindowView> FWindowView::Make(EEditorViewUse Use, std::string& OutError)
{
	if (Use == EEditorViewUse::Person && !HasDisplay())
	{
		OutError = "quillon-editor: there is no display to open the window on (DISPLAY and WAYLAND_DISPLAY are not "
				   "set); `quillon-editor create NAME` does the job without one (see --help)";
		return nullptr;
	}
	if (Use == EEditorViewUse::Script)
	{
		// A picture must not depend on whose screen it is taken on.
		qputenv("QT_QPA_PLATFORM", GetOffscreenPlatform());
	}
	std::unique_ptr<FWindowView> View(new FWindowView(Use));
	View->Application = MakeApplication();
	FWindowStyle::Apply(*qApp);
	if (Use == EEditorViewUse::Script)
	{
		QApplication::setCursorFlashTime(0);
	}
	return View;
}

FWindowView::~FWindowView()
{
	Detach();
}

void FWindowView::Attach(FStandaloneEditor& Editor)
{
	FSlateApplication::Get().InitializeRenderer(MakeShared<FQtRenderer>());
	Context = std::make_unique<FWindowContext>(FWindowContext{Editor, Use});
	Window = std::make_unique<FMainWindow>(*Context);
	Window->show();
}

void FWindowView::Detach()
{
	if (!Window)
	{
		return;
	}
	Window.reset();
	Context.reset();
	FSlateApplication::Get().InitializeRenderer(MakeShared<FSlateNullRenderer>());
	QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void FWindowView::Update()
{
	QCoreApplication::processEvents();
	Window->Poll();
	QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
	QCoreApplication::processEvents();
}

void FWindowView::Step()
{
	// While a dialog is up, the engine or a module may be waiting for its answer: nothing may move beneath them.
	if (!QApplication::activeModalWidget())
	{
		Context->Editor.Tick();
		Window->Poll();
	}
}

void FWindowView::Run(const std::string& LevelFile)
{
	const FMessageBoxes MessageBoxes(*Window);
	Window->SetLevelFile(QString::fromStdString(LevelFile));
	QTimer Timer;
	QObject::connect(&Timer, &QTimer::timeout, &Timer, [this]() { Step(); });
	Timer.start(MillisecondsPerFrame);
	Step();
	QApplication::exec();
}

bool FWindowView::SaveScreenshot(const std::string& File, const std::string& Tab, std::string& OutError)
{
	QWidget* Part = Window->PrepareScreenshot(QString::fromStdString(Tab));
	if (!Part)
	{
		OutError = "the window has no panel or open tab \"" + Tab + "\"";
		return false;
	}
	Update();
	QByteArray Bytes;
	QBuffer Buffer(&Bytes);
	Buffer.open(QIODevice::WriteOnly);
	if (!Part->grab().save(&Buffer, "PNG"))
	{
		OutError = "the picture can't be made";
		return false;
	}
	return FFileAccess::Replace(File, Bytes.toStdString(), OutError);
}

extern "C" __attribute__((visibility("default"))) IEditorView* MakeEditorView(EEditorViewUse Use, std::string& OutError)
{
	return FWindowView::Make(Use, OutError).release();
}
