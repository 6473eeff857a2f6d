// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Input/CursorReply.h"
#include "Input/Events.h"
#include "Input/PopupMethodReply.h"
#include "Input/Reply.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Children.h"
#include "Layout/Clipping.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Styling/WidgetStyle.h"
#include "Types/ISlateMetaData.h"
#include "Types/PaintArgs.h"
#include "Types/SlateEnums.h"
#include "Widgets/SlateControlledConstruction.h"

class FArrangedChildren;
class FSlateWindowElementList;
class FWeakWidgetPath;
class FWidgetPath;
class IToolTip;
struct FSlateBaseNamedArgs;

// The base of all widgets. Nothing is cached between ticks: every tick lays out and paints all of it, so invalidation asks for
// nothing. Left out: render transforms, drag and drop, touch, accessibility, active timers, right-to-left layout.

DECLARE_DELEGATE_RetVal_TwoParams(FReply, FPointerEventHandler, const FGeometry&, const FPointerEvent&);
DECLARE_DELEGATE_TwoParams(FNoReplyPointerEventHandler, const FGeometry&, const FPointerEvent&);
DECLARE_DELEGATE_OneParam(FSimpleNoReplyPointerEventHandler, const FPointerEvent&);

/** What changed in a widget. */
enum class EInvalidateWidgetReason : uint8
{
	None = 0,
	Layout = 1 << 0,
	Paint = 1 << 1,
	Volatility = 1 << 2,
	ChildOrder = 1 << 3,
	RenderTransform = 1 << 4,
	Visibility = 1 << 5,
	Prepass = 1 << 6,
	PaintAndVolatility = Paint | Volatility,
	LayoutAndVolatility = Layout | Volatility
};

/** The base of all widgets. */
class SLATECORE_API SWidget : public FSlateControlledConstruction, public TSharedFromThis<SWidget>
{
public:
	/** Takes the arguments that all widgets share; SNew calls it before Construct. */
	void SWidgetConstruct(const FSlateBaseNamedArgs& Args);

	/** Notes the widget's type and where it was made; SNew calls it. */
	void SetDebugInfo(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine);

	// Painting and ticking.

	/** Paints the widget and returns the highest layer it used. */
	int32 Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	/** Is called once a pass before painting, if the widget wants ticks; times in seconds. */
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime);

	/** Says whether the widget wants ticks. */
	bool GetCanTick() const { return bCanTick; }

	/** Sets whether the widget wants ticks; it does at first. */
	void SetCanTick(bool bInCanTick) { bCanTick = bInCanTick; }

	// Keyboard.

	/** Is told that the widget received the focus. */
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent);

	/** Is told that the widget lost the focus. */
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent);

	/** Is told on both paths that the focus moves from one to the other. */
	virtual void OnFocusChanging(
		const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent);

	/** Is told of a typed character; bubbles from the focused widget. */
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent);

	/** Is told of a pressed key on the way down to the focused widget. */
	virtual FReply OnPreviewKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);

	/** Is told of a pressed key; bubbles from the focused widget. */
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);

	/** Is told of a released key; bubbles from the focused widget. */
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);

	// Mouse.

	/** Is told of a pressed button; bubbles. */
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	/** Is told of a pressed button on the way down. */
	virtual FReply OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	/** Is told of a released button; bubbles. */
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	/** Is told of a moved mouse; bubbles. */
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	/** Is told that the mouse came onto the widget or one of its children. */
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	/** Is told that the mouse left the widget. */
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent);

	/** Is told of a turned wheel; bubbles. */
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	/** Is told of a double click; bubbles, and comes as a press where no widget handles it. */
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent);

	/** Is asked for the cursor; bubbles. */
	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const;

	/** Is told that the widget no longer has the mouse. */
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent);

	/** Is told that a tool tip is about to show; true shows it by itself. */
	virtual bool OnVisualizeTooltip(const TSharedPtr<SWidget>& TooltipContent);

	/** Is asked how pop-ups below it are shown; bubbles. */
	virtual FPopupMethodReply OnQueryPopupMethod() const;

	/** Says whether the widget can have the focus. */
	virtual bool SupportsKeyboardFocus() const;

	/** Says whether the widget has the focus. */
	virtual bool HasKeyboardFocus() const;

	/** Says why a user's focus is on the widget, unset if it is not. */
	TOptional<EFocusCause> HasUserFocus(int32 UserIndex) const;

	/** Says why any user's focus is on the widget, unset if none is. */
	TOptional<EFocusCause> HasAnyUserFocus() const;

	/** Says whether the focus is on the widget or below it. */
	bool HasFocusedDescendants() const;

	/** Says whether a user's focus is on the widget or below it. */
	bool HasUserFocusedDescendants(int32 UserIndex) const;

	/** Says whether all mouse events go to the widget. */
	bool HasMouseCapture() const;

	/** Says whether the mouse is on the widget or one of its children. */
	virtual bool IsHovered() const { return bIsHovered; }

	/** Says whether the mouse is on the widget and on none of its children. */
	virtual bool IsDirectlyHovered() const;

	/** Says whether the widget acts on input: enabled, as all its parents are. */
	bool IsInteractable() const { return IsEnabled(); }

	// Layout.

	/** Computes the desired size of the widget and all below it at the last scale. */
	void SlatePrepass();

	/** Computes the desired size of the widget and all below it at a scale. */
	void SlatePrepass(float InLayoutScaleMultiplier);

	/** Returns the desired size of the last prepass, in Slate units. */
	FVector2D GetDesiredSize() const { return DesiredSize; }

	/** Arranges the children in a geometry. */
	void ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const;

	/** Returns the children. */
	virtual FChildren* GetChildren() = 0;

	/** Returns the scale at which a child lies in the widget. */
	virtual float GetRelativeLayoutScale(const int32 ChildIndex, float LayoutScaleMultiplier) const;

	/** Returns the geometry of the last paint. */
	const FGeometry& GetCachedGeometry() const { return CachedGeometry; }

	/** Returns the geometry of the last paint. */
	const FGeometry& GetTickSpaceGeometry() const { return CachedGeometry; }

	/** Returns the geometry of the last paint. */
	const FGeometry& GetPaintSpaceGeometry() const { return CachedGeometry; }

	/** Says that something changed; nothing is cached, so nothing happens. */
	void Invalidate(EInvalidateWidgetReason InvalidateReason);

	// State.

	/** Returns the cursor to show over the widget. */
	TOptional<EMouseCursor::Type> GetCursor() const { return Cursor.Get(); }

	/** Sets the cursor to show over the widget. */
	void SetCursor(const TAttribute<TOptional<EMouseCursor::Type>>& InCursor) { Cursor = InCursor; }

	/** Sets a text to show when the mouse rests on the widget; Slate must be running. */
	void SetToolTipText(const TAttribute<FText>& ToolTipText);

	/** Sets a text to show when the mouse rests on the widget; Slate must be running. */
	void SetToolTipText(const FText& InToolTipText);

	/** Sets what shows when the mouse rests on the widget. */
	void SetToolTip(const TAttribute<TSharedPtr<IToolTip>>& InToolTip) { ToolTip = InToolTip; }

	/** Returns what shows when the mouse rests on the widget, or null. */
	TSharedPtr<IToolTip> GetToolTip();

	/** Says whether the widget is enabled; its parents are not asked. */
	bool IsEnabled() const { return EnabledState.Get(); }

	/** Sets whether the widget is enabled. */
	void SetEnabled(const TAttribute<bool>& InEnabledState) { EnabledState = InEnabledState; }

	/** Returns whether the widget is drawn, takes space and receives the mouse. */
	EVisibility GetVisibility() const { return Visibility.Get(); }

	/** Sets whether the widget is drawn, takes space and receives the mouse. */
	virtual void SetVisibility(TAttribute<EVisibility> InVisibility) { Visibility = InVisibility; }

	/** Returns the opacity, 0 to 1. */
	float GetRenderOpacity() const { return RenderOpacity; }

	/** Sets the opacity, 0 to 1. */
	void SetRenderOpacity(float InRenderOpacity) { RenderOpacity = InRenderOpacity; }

	/** Returns how the widget cuts off what is drawn. */
	EWidgetClipping GetClipping() const { return Clipping; }

	/** Sets how the widget cuts off what is drawn. */
	void SetClipping(EWidgetClipping InClipping) { Clipping = InClipping; }

	/** Sets the widget's name for tests and tutorials. */
	void SetTag(FName InTag) { Tag = InTag; }

	/** Returns the widget's name for tests and tutorials. */
	FName GetTag() const { return Tag; }

	/** Attaches data. */
	template <typename MetaDataType>
	void AddMetadata(const TSharedRef<MetaDataType>& AddMe)
	{
		MetaData.Add(AddMe);
	}

	/** Returns the first attached data of a type, or null. */
	template <typename MetaDataType>
	TSharedPtr<MetaDataType> GetMetaData() const
	{
		for (int32 Index = 0; Index < MetaData.Num(); ++Index)
		{
			if (MetaData[Index]->template IsOfType<MetaDataType>())
			{
				return StaticCastSharedPtr<MetaDataType>(TSharedPtr<ISlateMetaData>(MetaData[Index]));
			}
		}
		return TSharedPtr<MetaDataType>();
	}

	/** Sets a handler that is called before the widget's own for pressed buttons. */
	void SetOnMouseButtonDown(FPointerEventHandler EventHandler) { MouseButtonDownHandler = EventHandler; }

	/** Sets a handler that is called for released buttons. */
	void SetOnMouseButtonUp(FPointerEventHandler EventHandler) { MouseButtonUpHandler = EventHandler; }

	/** Sets a handler that is called for a moved mouse. */
	void SetOnMouseMove(FPointerEventHandler EventHandler) { MouseMoveHandler = EventHandler; }

	/** Sets a handler that is called for double clicks. */
	void SetOnMouseDoubleClick(FPointerEventHandler EventHandler) { MouseDoubleClickHandler = EventHandler; }

	/** Sets a handler that is called when the mouse comes in. */
	void SetOnMouseEnter(FNoReplyPointerEventHandler EventHandler) { MouseEnterHandler = EventHandler; }

	/** Sets a handler that is called when the mouse leaves. */
	void SetOnMouseLeave(FSimpleNoReplyPointerEventHandler EventHandler) { MouseLeaveHandler = EventHandler; }

	// The tree.

	/** Says whether the widget has a living parent. */
	bool IsParentValid() const { return ParentWidgetPtr.IsValid(); }

	/** Returns the parent or null. */
	TSharedPtr<SWidget> GetParentWidget() const { return ParentWidgetPtr.Pin(); }

	/** Makes a widget the parent; for slots. */
	void AssignParentWidget(TSharedPtr<SWidget> InParent);

	/** Takes the parent away if it is the given one; for slots. */
	bool ConditionallyDetatchParentWidget(SWidget* InExpectedParent);

	/** Says whether a child would be drawn with the widget and its parents enabled as they are. */
	bool ShouldBeEnabled(bool InParentEnabled) const { return InParentEnabled && IsEnabled(); }

	/** Returns the widget's type. */
	FName GetType() const { return TypeOfWidget; }

	/** Returns the widget's type. */
	FString GetTypeAsString() const { return TypeOfWidget.ToString(); }

	/** Returns type and place of making as text. */
	virtual FString ToString() const;

	/** Returns file and line of making as text. */
	FString GetReadableLocation() const;

	/** Returns the foreground colour that children shall use. */
	virtual FSlateColor GetForegroundColor() const;

	/** Is called by the window when the mouse comes onto the widget or leaves it; for the application. */
	void SetHovered(bool bInHovered) { bIsHovered = bInHovered; }

protected:
	SWidget();
	~SWidget() override;

	/** Draws the widget and its children; returns the highest layer used. */
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const = 0;

	/** Adds the children with their geometries. */
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const = 0;

	/** Computes the desired size from the children's, which are known; in Slate units. */
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const = 0;

	/** Does work before the children's desired sizes are computed; only called if SetHasCustomPrepass asked for it. */
	virtual bool CustomPrepass(float LayoutScaleMultiplier);

	/** Sets whether CustomPrepass is called. */
	void SetHasCustomPrepass(bool bInHasCustomPrepass) { bHasCustomPrepass = bInHasCustomPrepass; }

	/** Says whether the widget is drawn anew every time; it always is. */
	virtual bool ComputeVolatility() const { return false; }

	/** Says whether an arranged child lies wholly outside a rectangle. */
	bool IsChildWidgetCulled(const FSlateRect& MyCullingRect, const FArrangedWidget& ArrangedChild) const;

	/** Handlers set from outside. */
	FPointerEventHandler MouseButtonDownHandler;
	FPointerEventHandler MouseButtonUpHandler;
	FPointerEventHandler MouseMoveHandler;
	FPointerEventHandler MouseDoubleClickHandler;
	FNoReplyPointerEventHandler MouseEnterHandler;
	FSimpleNoReplyPointerEventHandler MouseLeaveHandler;

private:
	void PrepassInternal(float InLayoutScaleMultiplier);

	TAttribute<bool> EnabledState;
	TAttribute<EVisibility> Visibility;
	TAttribute<TOptional<EMouseCursor::Type>> Cursor;
	TAttribute<TSharedPtr<IToolTip>> ToolTip;
	TWeakPtr<SWidget> ParentWidgetPtr;
	TArray<TSharedRef<ISlateMetaData>> MetaData;
	mutable FGeometry CachedGeometry;
	FVector2D DesiredSize;
	FName TypeOfWidget;
	FName Tag;
	const ANSICHAR* CreatedInFile;
	int32 CreatedOnLine;
	float PrepassLayoutScaleMultiplier;
	float RenderOpacity;
	EWidgetClipping Clipping;
	bool bIsHovered;
	bool bCanTick;
	bool bHasCustomPrepass;
};
