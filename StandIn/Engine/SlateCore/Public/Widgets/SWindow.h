// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/HittestGrid.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "Misc/Optional.h"
#include "Rendering/DrawElements.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"

// Windows. There are no native windows: all lie on one desktop, which the host shows on its one surface; positions and sizes are
// the desktop's. Slate draws title bars and borders itself, as it does where the system gives none; windows are dragged by their
// title bars and resized at their right and lower edges. Left out: resizing at the other edges, minimizing and maximizing by hand,
// transparency, full screen, volume.

class SWindow;

DECLARE_DELEGATE_OneParam(FOnWindowClosed, const TSharedRef<SWindow>&);
DECLARE_DELEGATE_OneParam(FRequestDestroyWindowOverride, const TSharedRef<SWindow>&);

/** What a window is for. */
enum class EWindowType
{
	Normal,
	Menu,
	ToolTip,
	Notification,
	CursorDecorator,
	GameWindow
};

/** What decides a window's size. */
enum class ESizingRule : uint8
{
	FixedSize,
	Autosized,
	UserSized
};

/** Measures of windows, in Slate units. */
namespace SWindowDefs
{
/** Height of the title bar. */
static const float DefaultTitleBarSize = 24.0f;

/** Width of the border that Slate draws. */
static const float BorderSize = 4.0f;

/** Smallest size that the mouse leaves of the content. */
static const float MinClientLength = 80.0f;
}

/** Where a window first appears. */
enum class EAutoCenter : uint8
{
	None,
	PrimaryWorkArea,
	PreferredWorkArea
};

/** How large a window that follows its content may become, in pixels of the desktop; what is not set has no limit. */
struct FWindowSizeLimits
{
	/** Sets the largest width. */
	FWindowSizeLimits& SetMaxWidth(TOptional<float> InValue)
	{
		MaxWidth = InValue;
		return *this;
	}

	/** Returns the largest width. */
	const TOptional<float>& GetMaxWidth() const { return MaxWidth; }

	/** Sets the largest height. */
	FWindowSizeLimits& SetMaxHeight(TOptional<float> InValue)
	{
		MaxHeight = InValue;
		return *this;
	}

	/** Returns the largest height. */
	const TOptional<float>& GetMaxHeight() const { return MaxHeight; }

private:
	TOptional<float> MaxWidth;
	TOptional<float> MaxHeight;
};

/** A window: the root of a tree of widgets. */
class SLATECORE_API SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow)
		: _Type(EWindowType::Normal)
		, _Style(nullptr)
		, _AutoCenter(EAutoCenter::PreferredWorkArea)
		, _ScreenPosition(FVector2D(0.0f, 0.0f))
		, _ClientSize(FVector2D(0.0f, 0.0f))
		, _SizingRule(ESizingRule::UserSized)
		, _FocusWhenFirstShown(true)
		, _SupportsMaximize(true)
		, _SupportsMinimize(true)
		, _HasCloseButton(true)
		, _CreateTitleBar(true)
	{}
	SLATE_ARGUMENT(EWindowType, Type)
	SLATE_STYLE_ARGUMENT(FWindowStyle, Style)
	SLATE_ATTRIBUTE(FText, Title)
	SLATE_ARGUMENT(EAutoCenter, AutoCenter)
	SLATE_ARGUMENT(FVector2D, ScreenPosition)
	SLATE_ARGUMENT(FVector2D, ClientSize)
	SLATE_ARGUMENT(ESizingRule, SizingRule)
	SLATE_ARGUMENT(bool, FocusWhenFirstShown)
	SLATE_ARGUMENT(bool, SupportsMaximize)
	SLATE_ARGUMENT(bool, SupportsMinimize)
	SLATE_ARGUMENT(bool, HasCloseButton)
	SLATE_ARGUMENT(bool, CreateTitleBar)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	/** Makes a window. */
	SWindow();

	/** Destroys a window. */
	~SWindow() override;

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Makes the window that tool tips are shown in. */
	static TSharedRef<SWindow> MakeToolTipWindow();

	/** Makes a window for a pop-up at a place, as large as its content. */
	static TSharedRef<SWindow> MakePopupWindow(const FVector2D& InScreenPosition, EWindowType InType);

	/** Puts a widget into the window. */
	void SetContent(TSharedRef<SWidget> InContent);

	/** Returns the widget in the window. */
	TSharedRef<SWidget> GetContent();

	/** Returns what the window is for. */
	EWindowType GetType() const { return Type; }

	/** Says whether the window is neither a menu nor a tool tip nor a decoration. */
	bool IsRegularWindow() const { return Type == EWindowType::Normal || Type == EWindowType::GameWindow; }

	/** Returns the title. */
	FText GetTitle() const { return Title.Get(); }

	/** Says whether the title bar has a button that closes the window. */
	bool HasCloseBox() const { return bHasCloseButton; }

	/** Sets the title. */
	void SetTitle(const FText& InTitle) { Title = InTitle; }

	/** Returns the upper left corner. */
	FVector2D GetPositionInScreen() const { return ScreenPosition; }

	/** Returns the size. */
	FVector2D GetSizeInScreen() const { return Size; }

	/** Returns the size of what the content has. */
	FVector2D GetClientSizeInScreen() const { return GetClientRectInScreen().GetSize(); }

	/** Returns the area covered. */
	FSlateRect GetRectInScreen() const { return FSlateRect::FromPointAndExtent(ScreenPosition, Size); }

	/** Returns the area of what the content has. */
	FSlateRect GetClientRectInScreen() const;

	/** Returns the size of a window whose content has a size; both in desktop space. */
	FVector2D GetWindowSizeFromClientSize(FVector2D InClientSize) const;

	/** Says whether Slate draws the window's title bar and border. */
	bool HasTitleBar() const { return TitleArea.IsValid(); }

	/** Returns the geometry of the window. */
	FGeometry GetWindowGeometryInScreen() const;

	/** Moves the window. */
	void MoveWindowTo(FVector2D NewPosition) { ScreenPosition = NewPosition; }

	/** Resizes the window so that its content has a size. */
	void Resize(FVector2D NewClientSize) { Size = GetWindowSizeFromClientSize(NewClientSize); }

	/** Moves and resizes the window. */
	void ReshapeWindow(FVector2D NewPosition, FVector2D NewSize);

	/** Moves and resizes the window. */
	void ReshapeWindow(const FSlateRect& InNewShape) { ReshapeWindow(InNewShape.GetTopLeft(), InNewShape.GetSize()); }

	/** Says whether the window's size follows its content. */
	bool IsAutosized() const { return SizingRule == ESizingRule::Autosized; }

	/** Returns how large the window may become as it follows its content. */
	FWindowSizeLimits GetSizeLimits() const { return SizeLimits; }

	/** Sets how large the window may become as it follows its content. */
	void SetSizeLimits(const FWindowSizeLimits& InSizeLimits) { SizeLimits = InSizeLimits; }

	/** Returns pixels a Slate unit. */
	float GetDPIScaleFactor() const { return DPIScaleFactor; }

	/** Sets pixels a Slate unit; the content keeps its size in pixels. */
	void SetDPIScaleFactor(float InFactor);

	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;

	/** Shows the window; Slate must know it. */
	void ShowWindow();

	/** Hides the window. */
	void HideWindow();

	/** Says whether the window is shown. */
	bool IsVisible() const { return bIsShown; }

	/** Says whether the window is the active one. */
	bool IsActive() const;

	/** Puts the window above all others of its kind. */
	void BringToFront(bool bForce = false);

	/** Asks the application to destroy the window. */
	void RequestDestroyWindow();

	/** Sets what is called in place of destroying when destruction is asked for. */
	void SetRequestDestroyWindowOverride(const FRequestDestroyWindowOverride& InRequestDestroyWindowOverride);

	/** Destroys the window now. */
	void DestroyWindowImmediately();

	/** Says whether the window is destroyed. */
	bool IsDestroyed() const { return bIsDestroyed; }

	/** Sets what is called when the window was closed. */
	void SetOnWindowClosed(const FOnWindowClosed& InDelegate) { OnWindowClosed = InDelegate; }

	/** Returns the event of the window being activated. */
	FSimpleMulticastDelegate& GetOnWindowActivatedEvent() { return WindowActivatedEvent; }

	/** Returns the event of the window being deactivated. */
	FSimpleMulticastDelegate& GetOnWindowDeactivatedEvent() { return WindowDeactivatedEvent; }

	/** Adds a window that lies above this one and dies with it. */
	void AddChildWindow(const TSharedRef<SWindow>& ChildWindow);

	/** Takes a child window out. */
	bool RemoveDescendantWindow(const TSharedRef<SWindow>& DescendantToRemove);

	/** Returns the windows above this one. */
	TArray<TSharedRef<SWindow>>& GetChildWindows() { return ChildWindows; }

	/** Returns the window that this one lies above, or null. */
	TSharedPtr<SWindow> GetParentWindow() const { return ParentWindowPtr.Pin(); }

	/** Sets the widget that receives the focus when the window is activated. */
	void SetWidgetToFocusOnActivate(TSharedPtr<SWidget> InWidget) { WidgetToFocusOnActivate = InWidget; }

	/** Returns the widget that receives the focus when the window is activated. */
	TSharedPtr<SWidget> GetWidgetToFocusOnActivate() const { return WidgetToFocusOnActivate.Pin(); }

	/** Says whether the window takes the focus when it is first shown. */
	bool IsFocusedInitially() const { return bFocusWhenFirstShown; }

	/** Returns what the window painted last, for hit tests. */
	FHittestGrid& GetHittestGrid() { return HittestGrid; }

	/** Returns what the window painted last, for drawing. */
	FSlateWindowElementList& GetElementList() { return *ElementList; }

	/** Lays out and paints the window into its list and grid; for the application. Times in seconds. */
	int32 PaintWindow(double InCurrentTime, float InDeltaTime);

	/** Lays out the window; one that follows its content takes its size. */
	void LayoutWindow();

	/** Is called by the application after the window was destroyed. */
	void NotifyWindowDestroyed();

	/** Is called by the application when the window is activated. */
	void NotifyActivated();

	/** Is called by the application when the window is deactivated. */
	void NotifyDeactivated();

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	/** The edges that the mouse resizes: 0 or 1 each for the right and the lower one. */
	FVector2D FindGrip(const FVector2D& ScreenSpacePosition) const;

	EWindowType Type;
	const FWindowStyle* Style;
	TAttribute<FText> Title;
	ESizingRule SizingRule;
	FWindowSizeLimits SizeLimits;
	FVector2D ScreenPosition;
	FVector2D Size;
	float DPIScaleFactor;
	bool bFocusWhenFirstShown;
	bool bIsShown;
	bool bIsDestroyed;
	bool bHasCloseButton;
	TSharedPtr<SWidget> TitleArea;
	SVerticalBox::FSlot* ContentSlot;
	FVector2D GrabbedEdges;
	FVector2D GrabbedAt;
	FVector2D SizeWhenGrabbed;
	FOnWindowClosed OnWindowClosed;
	FRequestDestroyWindowOverride RequestDestroyWindowOverride;
	FSimpleMulticastDelegate WindowActivatedEvent;
	FSimpleMulticastDelegate WindowDeactivatedEvent;
	TArray<TSharedRef<SWindow>> ChildWindows;
	TWeakPtr<SWindow> ParentWindowPtr;
	TWeakPtr<SWidget> WidgetToFocusOnActivate;
	FHittestGrid HittestGrid;
	TSharedPtr<FSlateWindowElementList> ElementList;
};
