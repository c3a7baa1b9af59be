// Copyright Corvane. MIT License.
#include "WindowFixture.h"

#include "Framework/Application/SlateApplication.h"
#include "QtRenderer.h"

FWindowFixture::FWindowFixture()
{
	std::string Error;
	if (!Editor.Start(FStandaloneEditorOptions(), Error))
	{
		ADD_FAILURE() << Error;
	}
	FSlateApplication::Get().InitializeRenderer(MakeShared<FQtRenderer>());
	FSlateApplication::Get().SetCurrentTime(Time);
	Context.Say = [this](const QString& Line) { LastSaid = Line; };
}

FWindowFixture::~FWindowFixture()
{
	Editor.Shutdown();
	// What was closed is deleted here, not in the next test.
	QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void FWindowFixture::Frame(FPanel& Panel)
{
	QCoreApplication::processEvents();
	Editor.Tick();
	Panel.Poll();
	QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
	QCoreApplication::processEvents();
}

void FWindowFixture::Advance(double Seconds)
{
	Time += Seconds;
	FSlateApplication::Get().SetCurrentTime(Time);
}

void FWindowFixture::ShowPanel(QWidget& Panel, int Width, int Height)
{
	Panel.resize(Width, Height);
	Panel.show();
	Panel.activateWindow();
	QCoreApplication::processEvents();
}

void FWindowFixture::Grab(QWidget& Panel, const char* Name)
{
	const QString Folder = qEnvironmentVariable("QUILLON_SHOTS");
	if (!Folder.isEmpty())
	{
		Panel.grab().save(Folder + u'/' + QString::fromLatin1(Name) + QStringLiteral(".png"));
	}
}
