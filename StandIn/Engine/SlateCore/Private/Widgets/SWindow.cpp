// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SWindow.h"
#include "Application/SlateApplicationBase.h"
#include "Input/CursorReply.h"
#include "InputCoreTypes.h"
#include "Styling/CoreStyle.h"

SWindow::SWindow()
	: Type(EWindowType::Normal)
	, Style(nullptr)
	, SizingRule(ESizingRule::UserSized)
	, ScreenPosition(0.0f, 0.0f)
	, Size(0.0f, 0.0f)
	, DPIScaleFactor(1.0f)
	, bFocusWhenFirstShown(true)
	, bIsShown(false)
	, bIsDestroyed(false)
	, bHasCloseButton(true)
	, ContentSlot(nullptr)
	, GrabbedEdges(0.0f, 0.0f)
	, GrabbedAt(0.0f, 0.0f)
	, SizeWhenGrabbed(0.0f, 0.0f)
{}

SWindow::~SWindow() {}

void SWindow::Construct(const FArguments& InArgs)
{
	Type = InArgs._Type;
	Style = InArgs._Style != nullptr ? InArgs._Style : &FCoreStyle::Get().GetWidgetStyle<FWindowStyle>("Window");
	Title = InArgs._Title;
	SizingRule = InArgs._SizingRule;
	ScreenPosition = InArgs._ScreenPosition;
	bHasCloseButton = InArgs._HasCloseButton;
	bFocusWhenFirstShown = InArgs._FocusWhenFirstShown;
	ElementList = MakeShareable(new FSlateWindowElementList(SharedThis(this)));
	if (InArgs._CreateTitleBar && IsRegularWindow())
	{
		TitleArea = FSlateApplicationBase::Get().MakeWindowTitleBar(SharedThis(this), nullptr, HAlign_Fill);
		const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
		Box->AddSlot().AutoHeight()[TitleArea.ToSharedRef()];
		ContentSlot = &Box->AddSlot().FillHeight(1.0f);
		const float Border = SWindowDefs::BorderSize;
		ChildSlot.Padding(FMargin(Border, 0.0f, Border, Border))[Box];
	}
	SetContent(InArgs._Content.Widget);
	Resize(InArgs._ClientSize);
}

TSharedRef<SWindow> SWindow::MakeToolTipWindow()
{
	const TSharedRef<SWindow> Window = MakePopupWindow(FVector2D(0.0f, 0.0f), EWindowType::ToolTip);
	// The mouse never meets a tool tip.
	Window->SetVisibility(EVisibility::HitTestInvisible);
	return Window;
}

TSharedRef<SWindow> SWindow::MakePopupWindow(const FVector2D& InScreenPosition, EWindowType InType)
{
	return SNew(SWindow)
		.Type(InType)
		.AutoCenter(EAutoCenter::None)
		.ScreenPosition(InScreenPosition)
		.SizingRule(ESizingRule::Autosized)
		.FocusWhenFirstShown(false)
		.CreateTitleBar(false);
}

void SWindow::SetContent(TSharedRef<SWidget> InContent)
{
	if (ContentSlot != nullptr)
	{
		(*ContentSlot)[InContent];
		return;
	}
	ChildSlot[InContent];
}

TSharedRef<SWidget> SWindow::GetContent()
{
	return ContentSlot != nullptr ? ContentSlot->GetWidget() : ChildSlot.GetWidget();
}

FSlateRect SWindow::GetClientRectInScreen() const
{
	const float Border = HasTitleBar() ? SWindowDefs::BorderSize * DPIScaleFactor : 0.0f;
	const float TitleHeight = HasTitleBar() ? SWindowDefs::DefaultTitleBarSize * DPIScaleFactor : 0.0f;
	return GetRectInScreen().InsetBy(FMargin(Border, TitleHeight, Border, Border));
}

FVector2D SWindow::GetWindowSizeFromClientSize(FVector2D InClientSize) const
{
	return HasTitleBar() ? InClientSize
			+ FVector2D(2.0f * SWindowDefs::BorderSize, SWindowDefs::DefaultTitleBarSize + SWindowDefs::BorderSize) * DPIScaleFactor
						 : InClientSize;
}

FGeometry SWindow::GetWindowGeometryInScreen() const
{
	return FGeometry::MakeRoot(Size / DPIScaleFactor, FSlateLayoutTransform(DPIScaleFactor, ScreenPosition));
}

void SWindow::ReshapeWindow(FVector2D NewPosition, FVector2D NewSize)
{
	ScreenPosition = NewPosition;
	Size = NewSize;
}

void SWindow::SetDPIScaleFactor(float InFactor)
{
	const FVector2D ClientSize = GetClientSizeInScreen();
	DPIScaleFactor = InFactor;
	Resize(ClientSize);
}

FReply SWindow::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	const FVector2D Grip = FindGrip(MouseEvent.GetScreenSpacePosition());
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || Grip == FVector2D::ZeroVector)
	{
		return FReply::Unhandled();
	}
	GrabbedEdges = Grip;
	GrabbedAt = MouseEvent.GetScreenSpacePosition();
	SizeWhenGrabbed = Size;
	return FReply::Handled().CaptureMouse(SharedThis(this));
}

FReply SWindow::OnMouseButtonUp(const FGeometry&, const FPointerEvent&)
{
	GrabbedEdges = FVector2D::ZeroVector;
	return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
}

FReply SWindow::OnMouseMove(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (!HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	const FVector2D Smallest =
		GetWindowSizeFromClientSize(FVector2D(SWindowDefs::MinClientLength, SWindowDefs::MinClientLength) * DPIScaleFactor);
	const FVector2D Wanted = SizeWhenGrabbed + GrabbedEdges * (MouseEvent.GetScreenSpacePosition() - GrabbedAt);
	Size = FVector2D(FMath::Max(Wanted.X, Smallest.X), FMath::Max(Wanted.Y, Smallest.Y));
	return FReply::Handled();
}

FCursorReply SWindow::OnCursorQuery(const FGeometry&, const FPointerEvent& CursorEvent) const
{
	const FVector2D Edges = HasMouseCapture() ? GrabbedEdges : FindGrip(CursorEvent.GetScreenSpacePosition());
	if (Edges == FVector2D::ZeroVector)
	{
		return FCursorReply::Unhandled();
	}
	return FCursorReply::Cursor(Edges.X == 0.0f ? EMouseCursor::ResizeUpDown
			: Edges.Y == 0.0f                   ? EMouseCursor::ResizeLeftRight
												: EMouseCursor::ResizeSouthEast);
}

FVector2D SWindow::FindGrip(const FVector2D& ScreenSpacePosition) const
{
	if (!HasTitleBar() || SizingRule != ESizingRule::UserSized)
	{
		return FVector2D::ZeroVector;
	}
	// The corner is easier to hit than the edges that meet in it.
	const FSlateRect Rect = GetRectInScreen();
	const float Border = SWindowDefs::BorderSize * DPIScaleFactor;
	const FVector2D ToCorner(Rect.Right - ScreenSpacePosition.X, Rect.Bottom - ScreenSpacePosition.Y);
	const bool bRight = ToCorner.X <= Border || (ToCorner.Y <= Border && ToCorner.X <= 4.0f * Border);
	const bool bBottom = ToCorner.Y <= Border || (ToCorner.X <= Border && ToCorner.Y <= 4.0f * Border);
	return FVector2D(bRight ? 1.0f : 0.0f, bBottom ? 1.0f : 0.0f);
}

void SWindow::ShowWindow()
{
	ensureMsgf(!bIsDestroyed, TEXT("A destroyed window cannot be shown."));
	bIsShown = !bIsDestroyed;
}

void SWindow::HideWindow()
{
	bIsShown = false;
}

bool SWindow::IsActive() const
{
	return FSlateApplicationBase::Get().GetActiveTopLevelWindow().Get() == this;
}

void SWindow::BringToFront(bool /*bForce*/)
{
	FSlateApplicationBase::Get().BringWindowToFront(SharedThis(this));
}

void SWindow::RequestDestroyWindow()
{
	if (RequestDestroyWindowOverride.IsBound())
	{
		RequestDestroyWindowOverride.Execute(SharedThis(this));
	}
	else
	{
		DestroyWindowImmediately();
	}
}

void SWindow::SetRequestDestroyWindowOverride(const FRequestDestroyWindowOverride& InRequestDestroyWindowOverride)
{
	RequestDestroyWindowOverride = InRequestDestroyWindowOverride;
}

void SWindow::DestroyWindowImmediately()
{
	FSlateApplicationBase::Get().RequestDestroyWindow(SharedThis(this));
}

void SWindow::AddChildWindow(const TSharedRef<SWindow>& ChildWindow)
{
	if (const TSharedPtr<SWindow> OldParent = ChildWindow->ParentWindowPtr.Pin())
	{
		OldParent->RemoveDescendantWindow(ChildWindow);
	}
	ChildWindow->ParentWindowPtr = SharedThis(this);
	ChildWindows.Add(ChildWindow);
}

bool SWindow::RemoveDescendantWindow(const TSharedRef<SWindow>& DescendantToRemove)
{
	if (ChildWindows.Remove(DescendantToRemove) > 0)
	{
		DescendantToRemove->ParentWindowPtr.Reset();
		return true;
	}
	for (int32 Index = 0; Index < ChildWindows.Num(); ++Index)
	{
		if (ChildWindows[Index]->RemoveDescendantWindow(DescendantToRemove))
		{
			return true;
		}
	}
	return false;
}

void SWindow::LayoutWindow()
{
	SlatePrepass(DPIScaleFactor);
	if (IsAutosized())
	{
		Size = GetDesiredSize() * DPIScaleFactor;
		Size.X = FMath::Min(Size.X, SizeLimits.GetMaxWidth().Get(Size.X));
		Size.Y = FMath::Min(Size.Y, SizeLimits.GetMaxHeight().Get(Size.Y));
	}
}

int32 SWindow::PaintWindow(double InCurrentTime, float InDeltaTime)
{
	ElementList->ResetElementList();
	HittestGrid.Clear();
	const FPaintArgs Args(nullptr, HittestGrid, InCurrentTime, InDeltaTime);
	return Paint(Args, GetWindowGeometryInScreen(), GetRectInScreen(), *ElementList, 0, FWidgetStyle(), true);
}

void SWindow::NotifyWindowDestroyed()
{
	bIsDestroyed = true;
	bIsShown = false;
	const FOnWindowClosed Closed = OnWindowClosed;
	Closed.ExecuteIfBound(SharedThis(this));
}

void SWindow::NotifyActivated()
{
	WindowActivatedEvent.Broadcast();
}

void SWindow::NotifyDeactivated()
{
	WindowDeactivatedEvent.Broadcast();
}

int32 SWindow::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	// What a window shows ends at its edge.
	OutDrawElements.PushClip(FSlateClippingZone(AllottedGeometry));
	if (IsRegularWindow())
	{
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(),
			&Style->BackgroundBrush, ESlateDrawEffect::None, Style->BackgroundBrush.GetTint(InWidgetStyle));
		if (HasTitleBar())
		{
			FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(),
				&Style->BorderBrush, ESlateDrawEffect::None, Style->BorderBrush.GetTint(InWidgetStyle));
		}
	}
	const int32 MaxLayerId =
		SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	OutDrawElements.PopClip();
	return MaxLayerId;
}
