// Copyright Corvane. MIT License.
#include "LevelViewport.h"

#include <algorithm>
#include <cmath>

#include "ActorEdits.h"
#include "EditorViewportClient.h"
#include "EditorViews.h"
#include "Framework/Application/SlateApplication.h"
#include "GameFramework/Actor.h"
#include "Panels/ViewportPainter.h"
#include "StandaloneEditorEvents.h"
#include "WindowStyle.h"

namespace
{
	constexpr float DegreesPerUnit = 0.25f;
	constexpr float MaxPitch = 89.0f;
	/** Centimetres a unit of dragging, and a notch of the wheel. */
	constexpr double PanPerUnit = 2.0;
	constexpr double MovePerNotch = 100.0;

	/** What is not a number would differ from itself, and be painted again and again. */
	bool IsSame(float Left, float Right)
	{
		return Left == Right || (std::isnan(Left) && std::isnan(Right));
	}

	bool IsSame(const FVector& Left, const FVector& Right)
	{
		return IsSame(Left.X, Right.X) && IsSame(Left.Y, Right.Y) && IsSame(Left.Z, Right.Z);
	}

	bool IsSame(const FRotator& Left, const FRotator& Right)
	{
		return IsSame(Left.Pitch, Right.Pitch) && IsSame(Left.Yaw, Right.Yaw) && IsSame(Left.Roll, Right.Roll);
	}
}

FLevelViewport::FLevelViewport(FWindowContext& InContext, QWidget* Parent) : FPanel(Parent), Context(InContext)
{
	setAccessibleName(QStringLiteral("Perspective viewport"));
	setAccessibleDescription(QStringLiteral("The arrow keys move the view, F shows what is selected."));
	setFocusPolicy(Qt::StrongFocus);
	setAttribute(Qt::WA_OpaquePaintEvent);
	setMinimumSize(80, 60);
	RedrawHandle = FStandaloneEditorEvents::Redraw.AddLambda([this](bool) { bRedraw = true; });
}

FLevelViewport::~FLevelViewport()
{
	FStandaloneEditorEvents::Redraw.Remove(RedrawHandle);
}

FEditorViewportClient* FLevelViewport::FindClient()
{
	const TArray<FEditorViewportClient*> Clients = FEditorViews::FindLevelClients();
	return Clients.Num() > 0 ? Clients[0] : nullptr;
}

FViewProjection FLevelViewport::MakeView() const
{
	return FViewProjection(ShownLocation, ShownRotation, QSizeF(size()));
}

void FLevelViewport::Poll()
{
	MoveView(Keys.TakeMove(FSlateApplication::Get().GetCurrentTime()));
	const FEditorViewportClient* Client = FindClient();
	const FVector Location = Client ? Client->GetViewLocation() : FVector();
	const FRotator Rotation = Client ? Client->GetViewRotation() : FRotator();
	const bool bSameView =
		IsSame(Location, ShownLocation) && IsSame(Rotation, ShownRotation) && bHasClient == (Client != nullptr);
	const bool bSceneChanged = Scene.Update();
	if (bSameView && !bSceneChanged && !bRedraw)
	{
		return;
	}
	ShownLocation = Location;
	ShownRotation = Rotation;
	bHasClient = Client != nullptr;
	View = MakeView();
	bRedraw = false;
	update();
}

void FLevelViewport::paintEvent(QPaintEvent* /*Event*/)
{
	++NumPaintings;
	QPainter Painter(this);
	Painter.setRenderHint(QPainter::Antialiasing);
	// Between two polls the widget may have got another size.
	View = MakeView();
	FViewportPainter Picture(Painter, View);
	if (bHasClient && View.IsSound())
	{
		Picture.DrawSky();
		Picture.DrawGrid();
		Picture.DrawItems(Scene);
		Picture.DrawAxes();
		Picture.DrawTitle(QStringLiteral("Perspective"));
	}
	else
	{
		Painter.fillRect(rect(), FWindowStyle::GetColours().Base);
		Painter.setPen(FWindowStyle::GetColours().DimText);
		Painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
			bHasClient ? QStringLiteral("The view is nowhere: press F with an actor selected")
					   : QStringLiteral("No viewport shows this level"));
	}
	if (hasFocus())
	{
		Painter.setPen(QPen(FWindowStyle::GetColours().Accent, 1.0));
		Painter.setBrush(Qt::NoBrush);
		Painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
	}
}

void FLevelViewport::MoveView(const FPoint3& Move)
{
	FEditorViewportClient* Client = FindClient();
	if (!Client || Move.Length() == 0.0)
	{
		return;
	}
	const FViewAxes Axes(Client->GetViewRotation());
	const FPoint3 Location =
		FPoint3(Client->GetViewLocation()) + Axes.Forward * Move.X + Axes.Right * Move.Y + FPoint3(0.0, 0.0, Move.Z);
	Client->SetViewLocation(Location.ToVector());
}

void FLevelViewport::FocusSelection()
{
	FEditorViewportClient* Client = FindClient();
	FPoint3 Centre;
	double Radius = 0.0;
	bRedraw |= Scene.Update();
	if (!Client || !Scene.FindSelectionBounds(Centre, Radius))
	{
		Context.Say(QStringLiteral("Select an actor to show it"));
		return;
	}
	if (!FViewAxes(Client->GetViewRotation()).Forward.IsFinite())
	{
		Client->SetViewRotation(FRotator());
	}
	// A sphere fits into the view where its edge is as far off the axis as the narrower edge of the view.
	const double Narrower = width() > 0 ? qBound(0.05, static_cast<double>(height()) / width(), 1.0) : 1.0;
	const double Distance = Radius / std::sin(std::atan(Narrower));
	const FViewAxes Axes(Client->GetViewRotation());
	Client->SetViewLocation((Centre - Axes.Forward * Distance).ToVector());
}

void FLevelViewport::SelectAt(QPointF Point, bool bToggle)
{
	// Several clicks may come between two polls.
	bRedraw |= Scene.Update();
	AActor* Actor = bHasClient ? Scene.FindActorAt(View, Point) : nullptr;
	if (bToggle && !Actor)
	{
		return;
	}
	std::vector<AActor*> Wanted = bToggle ? Scene.GetSelection().GetActors() : std::vector<AActor*>();
	const auto Found = std::find(Wanted.begin(), Wanted.end(), Actor);
	if (Found != Wanted.end())
	{
		Wanted.erase(Found);
	}
	else if (Actor)
	{
		Wanted.push_back(Actor);
	}
	FActorEdits::SelectOnly(Wanted);
}

void FLevelViewport::mousePressEvent(QMouseEvent* Event)
{
	PressedAt = Event->position();
	DraggedTo = Event->position();
	bFlying |= Event->button() == Qt::RightButton;
}

void FLevelViewport::mouseMoveEvent(QMouseEvent* Event)
{
	const QPointF Way = Event->position() - DraggedTo;
	DraggedTo = Event->position();
	FEditorViewportClient* Client = FindClient();
	if (Client && (Event->buttons() & Qt::RightButton))
	{
		FRotator Rotation = Client->GetViewRotation();
		Rotation.Yaw = std::remainder(Rotation.Yaw + static_cast<float>(Way.x()) * DegreesPerUnit, 360.0f);
		Rotation.Pitch -= static_cast<float>(Way.y()) * DegreesPerUnit;
		Rotation.Pitch = qBound(-MaxPitch, Rotation.Pitch, MaxPitch);
		Client->SetViewRotation(Rotation);
	}
	else if (Client && (Event->buttons() & Qt::MiddleButton))
	{
		const FViewAxes Axes(Client->GetViewRotation());
		const FPoint3 Move = Axes.Right * (Way.x() * PanPerUnit) - Axes.Up * (Way.y() * PanPerUnit);
		Client->SetViewLocation((FPoint3(Client->GetViewLocation()) + Move).ToVector());
	}
}

void FLevelViewport::mouseReleaseEvent(QMouseEvent* Event)
{
	const bool bClick = (Event->position() - PressedAt).manhattanLength() < QApplication::startDragDistance();
	if (Event->button() == Qt::LeftButton && bClick)
	{
		SelectAt(Event->position(), Event->modifiers() & Qt::ControlModifier);
	}
	else if (Event->button() == Qt::RightButton)
	{
		bFlying = false;
		Keys.ReleaseLetters();
	}
}

void FLevelViewport::wheelEvent(QWheelEvent* Event)
{
	MoveView({Event->angleDelta().y() / 120.0 * MovePerNotch, 0.0, 0.0});
	Event->accept();
}

void FLevelViewport::keyPressEvent(QKeyEvent* Event)
{
	const bool bPlain = (Event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
	if (bPlain && Event->key() == Qt::Key_F)
	{
		FocusSelection();
	}
	// A key that repeats is held already.
	else if (!bPlain || !Keys.Press(Event->key(), bFlying, Event->isAutoRepeat()))
	{
		FPanel::keyPressEvent(Event);
	}
}

void FLevelViewport::keyReleaseEvent(QKeyEvent* Event)
{
	if (!Event->isAutoRepeat())
	{
		Keys.Release(Event->key());
	}
}

void FLevelViewport::focusInEvent(QFocusEvent* /*Event*/)
{
	update();
}

void FLevelViewport::focusOutEvent(QFocusEvent* /*Event*/)
{
	bFlying = false;
	Keys.ReleaseAll();
	update();
}
