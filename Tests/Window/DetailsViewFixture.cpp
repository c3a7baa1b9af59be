// Copyright Corvane. MIT License.
#include "DetailsViewFixture.h"

#include <QtTest/QTest>

#include "ActorEdits.h"
#include "Editor.h"
#include "Panels/DetailsList.h"
#include "Panels/DetailsRowLine.h"
#include "WindowText.h"

void FDetailsViewFixture::Select(const std::vector<AActor*>& Actors)
{
	FActorEdits::SelectOnly(Actors);
	Step();
}

AEveryPropertyActor& FDetailsViewFixture::SelectOne()
{
	AEveryPropertyActor* Actor = Spawn<AEveryPropertyActor>();
	Select({Actor});
	return *Actor;
}

void FDetailsViewFixture::Beat()
{
	Advance(0.25);
	Step();
}

QStringList FDetailsViewFixture::GetNames() const
{
	QStringList Names;
	QList<FDetailsLine*> Lines;
	for (QObject* Child : View.GetList().widget()->children())
	{
		Lines.push_back(static_cast<FDetailsLine*>(Child));
	}
	std::sort(Lines.begin(), Lines.end(), [](const FDetailsLine* A, const FDetailsLine* B) { return A->y() < B->y(); });
	for (const FDetailsLine* Line : Lines)
	{
		EXPECT_TRUE(Line->isVisibleTo(View.GetList().widget()));
		Names.push_back(Line->GetName());
	}
	return Names;
}

FDetailsLine* FDetailsViewFixture::GetLine(const char* Name) const
{
	FDetailsLine* Line = View.GetList().FindLine(QString::fromLatin1(Name));
	EXPECT_NE(Line, nullptr) << Name;
	return Line;
}

int32 FDetailsViewFixture::FindId(const char* Path)
{
	for (const FDetailsPanel::FCategory& Category : Editor.GetDetails().GetLastCategories())
	{
		for (const FDetailsRow& Row : Category.Rows)
		{
			if (Row.Path == FString(Path))
			{
				return Row.Id;
			}
		}
	}
	return 0;
}

FDetailsRowLine* FDetailsViewFixture::FindRow(const char* Path)
{
	return View.GetList().FindRow(FindId(Path));
}

void FDetailsViewFixture::Open(FDetailsLine* Line)
{
	ASSERT_NE(Line, nullptr);
	Line->setFocus();
	QTest::keyClick(Line, Qt::Key_Right);
	EXPECT_TRUE(Line->IsOpen());
	Step();
}

QToolButton* FDetailsViewFixture::GetReset(const char* Path)
{
	FDetailsRowLine* Row = FindRow(Path);
	EXPECT_NE(Row, nullptr) << Path;
	return Row ? Row->findChild<QToolButton*>() : nullptr;
}

void FDetailsViewFixture::Type(const char* Path, const QString& Text)
{
	QLineEdit* Edit = GetValue<QLineEdit>(Path);
	ASSERT_NE(Edit, nullptr);
	QTest::mouseClick(Edit, Qt::LeftButton);
	Edit->selectAll();
	for (const QChar Unit : Text)
	{
		QTest::keyClick(Edit, Unit.toLatin1());
	}
}

QString FDetailsViewFixture::GetUndo()
{
	return GEditor->Trans->CanUndo() ? FWindowText::ToQt(GEditor->Trans->GetUndoContext().Title) : QString();
}
