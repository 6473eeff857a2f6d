// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"
#include "Widgets/SToolTip.h"

namespace
{
/** How long the mouse rests on a widget before its tool tip shows, in seconds. */
const double ToolTipSummonDelay = 0.15;

/** How long a tool tip takes to become opaque, in seconds. */
const double ToolTipIntroDuration = 0.1;

/** Where a tool tip lies from the mouse. */
const float ToolTipOffsetX = 12.0f;
const float ToolTipOffsetY = 16.0f;

/** How far a tool tip stays from the menus that it must not cover. */
const float ToolTipMenuGap = 2.0f;
}

TSharedRef<IToolTip> FSlateApplication::MakeToolTip(const TAttribute<FText>& ToolTipText)
{
	return SNew(SToolTip).Text(ToolTipText);
}

TSharedRef<IToolTip> FSlateApplication::MakeToolTip(const FText& ToolTipText)
{
	return SNew(SToolTip).Text(ToolTipText);
}

void FSlateApplication::SpawnToolTip(const TSharedRef<IToolTip>& InToolTip, const FVector2D& InSpawnLocation)
{
	CloseToolTip();
	ShowToolTip(InToolTip, InSpawnLocation);
}

void FSlateApplication::ShowToolTip(const TSharedRef<IToolTip>& InToolTip, const FVector2D& Location)
{
	InToolTip->OnOpening();
	ActiveToolTip = InToolTip;
	ToolTipShownAt = CurrentTime;
	ToolTipWindow = SWindow::MakeToolTipWindow();
	ToolTipWindow->SetDPIScaleFactor(ApplicationScale);
	ToolTipWindow->SetContent(InToolTip->AsWidget());
	ToolTipWindow->SetRenderOpacity(0.0f);
	AddWindow(ToolTipWindow.ToSharedRef(), true);
	ToolTipWindow->MoveWindowTo(Location);
}

void FSlateApplication::CloseToolTip()
{
	const TSharedPtr<IToolTip> ToolTip = ActiveToolTip.Pin();
	const TSharedPtr<SWindow> Window = ToolTipWindow;
	ActiveToolTip.Reset();
	ActiveToolTipSource.Reset();
	ToolTipWindow.Reset();
	bToolTipFollowsHover = false;
	if (Window.IsValid())
	{
		// The content belongs to the tool tip and may be shown again.
		Window->SetContent(SNullWidget::NullWidget);
		DestroyWindowImmediately(Window.ToSharedRef());
	}
	if (ToolTip.IsValid())
	{
		ToolTip->OnClosed();
	}
}

TSharedPtr<IToolTip> FSlateApplication::GetActiveToolTip() const
{
	return ActiveToolTip.Pin();
}

void FSlateApplication::UpdateToolTip(bool bCanSpawnNewToolTip)
{
	// The innermost widget under the mouse that has something to tell, disabled ones included.
	TSharedPtr<SWidget> Source;
	TSharedPtr<IToolTip> ToolTip;
	FWidgetPath Path;
	if (bAllowToolTips && bPointerInside && !MouseCaptor.IsValid())
	{
		Path = GetPathUnderPointer(CursorPos, true);
		for (int32 Index = Path.Widgets.Num() - 1; Index >= 0 && !Source.IsValid(); --Index)
		{
			const TSharedPtr<IToolTip> Candidate = Path.Widgets[Index].Widget->GetToolTip();
			if (Candidate.IsValid() && !Candidate->IsEmpty())
			{
				Source = Path.Widgets[Index].Widget;
				ToolTip = Candidate;
			}
		}
	}

	if (ToolTipWindow.IsValid() && bToolTipFollowsHover && (ActiveToolTipSource.Pin() != Source || ActiveToolTip.Pin() != ToolTip))
	{
		CloseToolTip();
	}
	if (PendingToolTipSource.Pin() != Source)
	{
		PendingToolTipSource = Source;
		PendingToolTipSince = CurrentTime;
		bToolTipSuppressed = false;
	}
	if (Source.IsValid() && !ToolTipWindow.IsValid() && !bToolTipSuppressed && bCanSpawnNewToolTip
		&& CurrentTime - PendingToolTipSince >= ToolTipSummonDelay - 1e-6)
	{
		bool bShownByWidget = false;
		for (int32 Index = Path.Widgets.Num() - 1; Index >= 0 && !bShownByWidget; --Index)
		{
			bShownByWidget = Path.Widgets[Index].Widget->OnVisualizeTooltip(ToolTip->AsWidget());
		}
		if (bShownByWidget)
		{
			bToolTipSuppressed = true;
		}
		else
		{
			ShowToolTip(ToolTip.ToSharedRef(), CursorPos);
			ActiveToolTipSource = Source;
			bToolTipFollowsHover = true;
		}
	}

	if (ToolTipWindow.IsValid())
	{
		const double Age = (CurrentTime - ToolTipShownAt) / ToolTipIntroDuration;
		ToolTipWindow->SetRenderOpacity(static_cast<float>(Age < 1.0 ? Age : 1.0));
		if (bToolTipFollowsHover)
		{
			PlaceToolTip(Path);
		}
	}
}

void FSlateApplication::PlaceToolTip(const FWidgetPath& HoveredPath)
{
	ToolTipWindow->LayoutWindow();
	const FSlateRect Area = GetWorkArea(FSlateRect::FromPointAndExtent(CursorPos, FVector2D(1.0f, 1.0f)));
	const FVector2D Size = ToolTipWindow->GetSizeInScreen();
	// Below and right of the mouse, else above it.
	const FVector2D Wanted = CursorPos + FVector2D(ToolTipOffsetX, ToolTipOffsetY) * ApplicationScale;
	const float Top = Wanted.Y + Size.Y <= Area.Bottom ? Wanted.Y : CursorPos.Y - Size.Y - 4.0f;
	const auto Push = [&Area, &Size](const FVector2D& Position) {
		return FVector2D(FMath::Max(Area.Left, FMath::Min(Position.X, Area.Right - Size.X)),
			FMath::Max(Area.Top, FMath::Min(Position.Y, Area.Bottom - Size.Y)));
	};
	FVector2D Place = Push(FVector2D(Wanted.X, Top));

	bool bHidesSubMenu = false;
	const TSharedPtr<IMenu> Menu = MenuStack.FindMenuInWidgetPath(HoveredPath);
	if (Menu.IsValid())
	{
		// Beside the menu and what was opened from it, else below or above them; where nothing is free an open submenu goes first.
		const FSlateRect Field = MenuStack.GetToolTipForceFieldRect(Menu.ToSharedRef(), HoveredPath);
		const float Gap = ToolTipMenuGap * ApplicationScale;
		const FVector2D Candidates[] = {FVector2D(Field.Right + Gap, Place.Y), FVector2D(Field.Left - Gap - Size.X, Place.Y),
			FVector2D(Place.X, Field.Bottom + Gap), FVector2D(Place.X, Field.Top - Gap - Size.Y)};
		bool bFound = false;
		for (const FVector2D& Candidate : Candidates)
		{
			const FSlateRect Rect = FSlateRect::FromPointAndExtent(Candidate, Size);
			if (FSlateRect::IsRectangleContained(Area, Rect))
			{
				Place = Candidate;
				bFound = true;
				break;
			}
		}
		bHidesSubMenu = !bFound && MenuStack.HasOpenSubMenus(Menu);
	}
	ToolTipWindow->MoveWindowTo(Place);
	if (bHidesSubMenu)
	{
		ToolTipWindow->HideWindow();
	}
	else
	{
		ToolTipWindow->ShowWindow();
	}
}
