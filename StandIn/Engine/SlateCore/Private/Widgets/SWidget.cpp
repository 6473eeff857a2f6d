// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SWidget.h"
#include "Application/SlateApplicationBase.h"
#include "Input/HittestGrid.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/WidgetPath.h"
#include "Rendering/DrawElements.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/IToolTip.h"
#include "Widgets/SNullWidget.h"

SWidget::SWidget()
	: EnabledState(true)
	, Visibility(EVisibility())
	, DesiredSize(0.0f, 0.0f)
	, CreatedInFile("")
	, CreatedOnLine(0)
	, PrepassLayoutScaleMultiplier(1.0f)
	, RenderOpacity(1.0f)
	, Clipping(EWidgetClipping::Inherit)
	, bIsHovered(false)
	, bCanTick(true)
	, bHasCustomPrepass(false)
{}

SWidget::~SWidget() {}

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args)
{
	SetEnabled(Args._IsEnabled);
	Visibility = Args._Visibility;
	RenderOpacity = Args._RenderOpacity;
	Clipping = Args._Clipping;
	Tag = Args._Tag;
	Cursor = Args._Cursor;
	MetaData = Args.MetaData;
	if (Args._ToolTip.IsValid())
	{
		// A whole tool tip goes before a text.
		SetToolTip(Args._ToolTip);
	}
	else if (Args._ToolTipText.IsSet())
	{
		SetToolTipText(Args._ToolTipText);
	}
}

void SWidget::SetDebugInfo(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine)
{
	TypeOfWidget = FName(InType);
	CreatedInFile = InFile;
	CreatedOnLine = OnLine;
}

int32 SWidget::Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	CachedGeometry = AllottedGeometry;
	const TSharedRef<SWidget> MutableThis = ConstCastSharedRef<SWidget>(AsShared());
	if (bCanTick)
	{
		MutableThis->Tick(AllottedGeometry, Args.GetCurrentTime(), Args.GetDeltaTime());
	}

	FSlateRect CullingBounds = MyCullingRect;
	const bool bClip = Clipping == EWidgetClipping::ClipToBounds || Clipping == EWidgetClipping::ClipToBoundsAlways
		|| Clipping == EWidgetClipping::ClipToBoundsWithoutIntersecting
		|| (Clipping == EWidgetClipping::OnDemand
			&& (DesiredSize.X > AllottedGeometry.GetLocalSize().X || DesiredSize.Y > AllottedGeometry.GetLocalSize().Y));
	if (bClip)
	{
		FSlateClippingZone Zone(AllottedGeometry);
		Zone.SetShouldIntersectParent(Clipping != EWidgetClipping::ClipToBoundsWithoutIntersecting);
		Zone.SetAlwaysClip(Clipping == EWidgetClipping::ClipToBoundsAlways);
		CullingBounds = Zone.GetShouldIntersectParent() ? CullingBounds.IntersectionWith(Zone.GetBoundingBox()) : Zone.GetBoundingBox();
		OutDrawElements.PushClip(Zone);
	}

	const EVisibility CurrentVisibility = GetVisibility();
	const bool bHittable = Args.GetInheritedHittestability() && CurrentVisibility.IsHitTestVisible();
	FPaintArgs UpdatedArgs = Args.WithNewParent(this);
	UpdatedArgs.SetInheritedHittestability(Args.GetInheritedHittestability() && CurrentVisibility.AreChildrenHitTestVisible());
	const TOptional<FSlateRect> ClipRect = OutDrawElements.GetClipRect();
	UpdatedArgs.SetHittestParentIndex(Args.GetHittestGrid().AddWidget(MutableThis, Args.GetHittestParentIndex(), AllottedGeometry,
		ClipRect.IsSet() ? ClipRect.GetValue() : MyCullingRect, LayerId, bHittable));

	FWidgetStyle ContentWidgetStyle(InWidgetStyle);
	ContentWidgetStyle.BlendOpacity(RenderOpacity);
	const int32 NewLayerId =
		OnPaint(UpdatedArgs, AllottedGeometry, CullingBounds, OutDrawElements, LayerId, ContentWidgetStyle, bParentEnabled);

	if (bClip)
	{
		OutDrawElements.PopClip();
	}
	return NewLayerId;
}

void SWidget::Tick(const FGeometry& /*AllottedGeometry*/, const double /*InCurrentTime*/, const float /*InDeltaTime*/) {}

FReply SWidget::OnFocusReceived(const FGeometry& /*MyGeometry*/, const FFocusEvent& /*InFocusEvent*/)
{
	return FReply::Unhandled();
}

void SWidget::OnFocusLost(const FFocusEvent& /*InFocusEvent*/) {}

void SWidget::OnFocusChanging(
	const FWeakWidgetPath& /*PreviousFocusPath*/, const FWidgetPath& /*NewWidgetPath*/, const FFocusEvent& /*InFocusEvent*/)
{}

FReply SWidget::OnKeyChar(const FGeometry& /*MyGeometry*/, const FCharacterEvent& /*InCharacterEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnPreviewKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*InKeyEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*InKeyEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyUp(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*InKeyEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return MouseButtonDownHandler.IsBound() ? MouseButtonDownHandler.Execute(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SWidget::OnPreviewMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return MouseButtonUpHandler.IsBound() ? MouseButtonUpHandler.Execute(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SWidget::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return MouseMoveHandler.IsBound() ? MouseMoveHandler.Execute(MyGeometry, MouseEvent) : FReply::Unhandled();
}

void SWidget::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	bIsHovered = true;
	MouseEnterHandler.ExecuteIfBound(MyGeometry, MouseEvent);
}

void SWidget::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	bIsHovered = false;
	MouseLeaveHandler.ExecuteIfBound(MouseEvent);
}

FReply SWidget::OnMouseWheel(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	return MouseDoubleClickHandler.IsBound() ? MouseDoubleClickHandler.Execute(InMyGeometry, InMouseEvent) : FReply::Unhandled();
}

FCursorReply SWidget::OnCursorQuery(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*CursorEvent*/) const
{
	const TOptional<EMouseCursor::Type> TheCursor = GetCursor();
	return TheCursor.IsSet() ? FCursorReply::Cursor(TheCursor.GetValue()) : FCursorReply::Unhandled();
}

void SWidget::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/) {}

bool SWidget::OnVisualizeTooltip(const TSharedPtr<SWidget>& /*TooltipContent*/)
{
	return false;
}

FPopupMethodReply SWidget::OnQueryPopupMethod() const
{
	return FPopupMethodReply::Unhandled();
}

bool SWidget::SupportsKeyboardFocus() const
{
	return false;
}

bool SWidget::HasKeyboardFocus() const
{
	return FSlateApplicationBase::Get().GetKeyboardFocusedWidget().Get() == this;
}

TOptional<EFocusCause> SWidget::HasUserFocus(int32 /*UserIndex*/) const
{
	return HasAnyUserFocus();
}

TOptional<EFocusCause> SWidget::HasAnyUserFocus() const
{
	return FSlateApplicationBase::Get().HasAnyUserFocus(AsShared());
}

bool SWidget::HasFocusedDescendants() const
{
	return FSlateApplicationBase::Get().HasFocusedDescendants(AsShared());
}

bool SWidget::HasUserFocusedDescendants(int32 /*UserIndex*/) const
{
	return HasFocusedDescendants();
}

bool SWidget::HasMouseCapture() const
{
	return FSlateApplicationBase::Get().DoesWidgetHaveMouseCapture(AsShared());
}

bool SWidget::IsDirectlyHovered() const
{
	return FSlateApplicationBase::Get().IsWidgetDirectlyHovered(AsShared());
}

void SWidget::SlatePrepass()
{
	SlatePrepass(PrepassLayoutScaleMultiplier);
}

void SWidget::SlatePrepass(float InLayoutScaleMultiplier)
{
	PrepassInternal(InLayoutScaleMultiplier);
}

void SWidget::PrepassInternal(float InLayoutScaleMultiplier)
{
	PrepassLayoutScaleMultiplier = InLayoutScaleMultiplier;
	if (bHasCustomPrepass && !CustomPrepass(InLayoutScaleMultiplier))
	{
		DesiredSize = ComputeDesiredSize(InLayoutScaleMultiplier);
		return;
	}
	FChildren* MyChildren = GetChildren();
	const int32 NumChildren = MyChildren->Num();
	for (int32 ChildIndex = 0; ChildIndex < NumChildren && ChildIndex < MyChildren->Num(); ++ChildIndex)
	{
		const TSharedRef<SWidget> Child = MyChildren->GetChildAt(ChildIndex);
		if (Child->GetVisibility() != EVisibility::Collapsed)
		{
			Child->PrepassInternal(InLayoutScaleMultiplier * GetRelativeLayoutScale(ChildIndex, InLayoutScaleMultiplier));
		}
	}
	ensure(NumChildren == MyChildren->Num());
	DesiredSize = ComputeDesiredSize(InLayoutScaleMultiplier);
}

bool SWidget::CustomPrepass(float /*LayoutScaleMultiplier*/)
{
	return true;
}

void SWidget::ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	OnArrangeChildren(AllottedGeometry, ArrangedChildren);
}

float SWidget::GetRelativeLayoutScale(const int32 /*ChildIndex*/, float /*LayoutScaleMultiplier*/) const
{
	return 1.0f;
}

void SWidget::Invalidate(EInvalidateWidgetReason /*InvalidateReason*/) {}

void SWidget::SetToolTipText(const TAttribute<FText>& ToolTipText)
{
	ToolTip = TSharedPtr<IToolTip>(FSlateApplicationBase::Get().MakeToolTip(ToolTipText));
}

void SWidget::SetToolTipText(const FText& InToolTipText)
{
	ToolTip = TSharedPtr<IToolTip>(FSlateApplicationBase::Get().MakeToolTip(InToolTipText));
}

TSharedPtr<IToolTip> SWidget::GetToolTip()
{
	return ToolTip.Get();
}

void SWidget::AssignParentWidget(TSharedPtr<SWidget> InParent)
{
	ensureMsgf(InParent.Get() != &SNullWidget::NullWidget.Get(), TEXT("The Null Widget can't be anyone's parent."));
	ensureMsgf(this != &SNullWidget::NullWidget.Get(),
		TEXT("The Null Widget can't have a parent, because a single instance is shared everywhere."));
	ensureMsgf(InParent.IsValid(), TEXT("Are you trying to detatch the parent of a widget?  Use ConditionallyDetatchParentWidget()."));
	ParentWidgetPtr = InParent;
}

bool SWidget::ConditionallyDetatchParentWidget(SWidget* InExpectedParent)
{
	// While a parent dies its weak pointer is already empty; only another living parent keeps its child.
	const TSharedPtr<SWidget> Parent = ParentWidgetPtr.Pin();
	if (!Parent.IsValid() || Parent.Get() == InExpectedParent)
	{
		ParentWidgetPtr.Reset();
		return true;
	}
	return false;
}

FString SWidget::ToString() const
{
	return FString::Printf(TEXT("%s [%s]"), *GetTypeAsString(), *GetReadableLocation());
}

FString SWidget::GetReadableLocation() const
{
	FString File(CreatedInFile);
	int32 LastSlash = INDEX_NONE;
	for (int32 Index = 0; Index < File.Len(); ++Index)
	{
		if (File[Index] == TEXT('/') || File[Index] == TEXT('\\'))
		{
			LastSlash = Index;
		}
	}
	return FString::Printf(TEXT("%s(%d)"), *File.Mid(LastSlash + 1), CreatedOnLine);
}

FSlateColor SWidget::GetForegroundColor() const
{
	return FSlateColor::UseForeground();
}

bool SWidget::IsChildWidgetCulled(const FSlateRect& MyCullingRect, const FArrangedWidget& ArrangedChild) const
{
	return !FSlateRect::DoRectanglesIntersect(MyCullingRect, ArrangedChild.Geometry.GetRenderBoundingRect());
}
