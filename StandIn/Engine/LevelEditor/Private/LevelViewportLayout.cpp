// Copyright The Tintmill authors. All rights reserved.

#include "LevelViewportLayout.h"

#include "SLevelEditor.h"
#include "SLevelViewport.h"
#include "SLevelViewportPanes.h"
#include "Widgets/SBoxPanel.h"

namespace
{
/** How the panes of a layout lie. */
enum class EPaneShape : uint8
{
	/** Side by side. */
	Row,
	/** One above the other. */
	Column,
	/** The first pane on one side, the others on the other. */
	FirstLeft,
	FirstRight,
	FirstTop,
	FirstBottom,
	/** Two by two. */
	Grid
};

/** What a layout consists of. */
struct FPaneLayout
{
	const TCHAR* Name;
	EPaneShape Shape;
	int32 NumPanes;
	ELevelViewportType Types[4];
};

const FPaneLayout PaneLayouts[] = {
	{TEXT("OnePane"), EPaneShape::Row, 1, {LVT_Perspective, LVT_None, LVT_None, LVT_None}},
	{TEXT("TwoPanesHoriz"), EPaneShape::Row, 2, {LVT_OrthoXY, LVT_Perspective, LVT_None, LVT_None}},
	{TEXT("TwoPanesVert"), EPaneShape::Column, 2, {LVT_OrthoXY, LVT_Perspective, LVT_None, LVT_None}},
	{TEXT("ThreePanesLeft"), EPaneShape::FirstLeft, 3, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_None}},
	{TEXT("ThreePanesRight"), EPaneShape::FirstRight, 3, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_None}},
	{TEXT("ThreePanesTop"), EPaneShape::FirstTop, 3, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_None}},
	{TEXT("ThreePanesBottom"), EPaneShape::FirstBottom, 3, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_None}},
	{TEXT("FourPanesLeft"), EPaneShape::FirstLeft, 4, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_OrthoYZ}},
	{TEXT("FourPanesRight"), EPaneShape::FirstRight, 4, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_OrthoYZ}},
	{TEXT("FourPanesTop"), EPaneShape::FirstTop, 4, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_OrthoYZ}},
	{TEXT("FourPanesBottom"), EPaneShape::FirstBottom, 4, {LVT_Perspective, LVT_OrthoXY, LVT_OrthoXZ, LVT_OrthoYZ}},
	{TEXT("FourPanes2x2"), EPaneShape::Grid, 4, {LVT_OrthoYZ, LVT_Perspective, LVT_OrthoXZ, LVT_OrthoXY}},
};

/** Finds what a layout consists of; fatal for an unknown name. */
const FPaneLayout& FindPaneLayout(const FName& LayoutName)
{
	const FPaneLayout* PaneLayout = nullptr;
	for (const FPaneLayout& Candidate : PaneLayouts)
	{
		if (LayoutName == FName(Candidate.Name))
		{
			PaneLayout = &Candidate;
		}
	}
	check(PaneLayout);
	return *PaneLayout;
}

/** Returns the name of a pane, the last part of its key. */
FString GetPaneName(int32 PaneIndex)
{
	return FString::Printf(TEXT("Viewport%d"), PaneIndex);
}

typedef TArray<TSharedRef<SWidget>> FWidgets;

/** Puts widgets side by side, or one above the other, in equal parts. */
TSharedRef<SWidget> Arrange(const FWidgets& Widgets, bool bSideBySide)
{
	if (bSideBySide)
	{
		TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
		for (const TSharedRef<SWidget>& Widget : Widgets)
		{
			Row->AddSlot().FillWidth(1.0f)[Widget];
		}
		return Row;
	}
	TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	for (const TSharedRef<SWidget>& Widget : Widgets)
	{
		Column->AddSlot().FillHeight(1.0f)[Widget];
	}
	return Column;
}
}

FLevelViewportLayout::FLevelViewportLayout(const FName& InLayoutTypeName)
	: LayoutTypeName(FindPaneLayout(InLayoutTypeName).Name)
	, bForeground(true)
{}

FLevelViewportLayout::~FLevelViewportLayout() {}

TArray<FName> FLevelViewportLayout::GetLayoutNames()
{
	TArray<FName> Names;
	for (const FPaneLayout& PaneLayout : PaneLayouts)
	{
		Names.Add(FName(PaneLayout.Name));
	}
	return Names;
}

TSharedRef<SWidget> FLevelViewportLayout::BuildViewportLayout(
	const TSharedPtr<SLevelEditor>& InParentLevelEditor, const FString& LayoutString)
{
	check(Viewports.Num() == 0);
	Panes = SNew(SLevelViewportPanes);
	const FPaneLayout& PaneLayout = FindPaneLayout(LayoutTypeName);
	const FString KeyStart = LayoutTypeName.ToString() + TEXT(".") + LayoutString + TEXT(".");
	for (int32 PaneIndex = 0; PaneIndex < PaneLayout.NumPanes; ++PaneIndex)
	{
		const ELevelViewportType ViewportType = PaneLayout.Types[PaneIndex];
		TSharedRef<SLevelViewport> Viewport = SNew(SLevelViewport)
												  .ParentLayout(AsShared())
												  .ParentLevelEditor(TWeakPtr<SLevelEditor>(InParentLevelEditor))
												  .ViewportType(ViewportType)
												  .Realtime(ViewportType == LVT_Perspective)
												  .ConfigKey(FName(*(KeyStart + GetPaneName(PaneIndex))));
		Viewports.Add(Viewport);
	}
	Panes->SetContent(ArrangePanes());
	return Panes.ToSharedRef();
}

TSharedRef<SWidget> FLevelViewportLayout::ArrangePanes() const
{
	FWidgets All;
	FWidgets Others;
	for (const TSharedPtr<SLevelViewport>& Viewport : Viewports)
	{
		All.Add(Viewport.ToSharedRef());
		if (All.Num() > 1)
		{
			Others.Add(Viewport.ToSharedRef());
		}
	}
	switch (FindPaneLayout(LayoutTypeName).Shape)
	{
	case EPaneShape::Row:
		return Arrange(All, true);
	case EPaneShape::Column:
		return Arrange(All, false);
	case EPaneShape::FirstLeft:
		return Arrange(FWidgets{All[0], Arrange(Others, false)}, true);
	case EPaneShape::FirstRight:
		return Arrange(FWidgets{Arrange(Others, false), All[0]}, true);
	case EPaneShape::FirstTop:
		return Arrange(FWidgets{All[0], Arrange(Others, true)}, false);
	case EPaneShape::FirstBottom:
		return Arrange(FWidgets{Arrange(Others, true), All[0]}, false);
	case EPaneShape::Grid:
		break;
	}
	return Arrange(FWidgets{Arrange(FWidgets{All[0], All[1]}, true), Arrange(FWidgets{All[2], All[3]}, true)}, false);
}

void FLevelViewportLayout::DestroyViewports()
{
	if (Panes.IsValid())
	{
		Panes->ClearContent();
		Panes.Reset();
	}
	while (Viewports.Num() > 0)
	{
		// The pane leaves the list before it is destroyed, so that handlers of the list events never meet it here.
		TSharedPtr<SLevelViewport> Dying = Viewports[0];
		Viewports.RemoveAt(0);
		Dying.Reset();
	}
}

TSharedPtr<SLevelViewport> FLevelViewportLayout::FindViewport(FName PaneName) const
{
	for (int32 PaneIndex = 0; PaneIndex < Viewports.Num(); ++PaneIndex)
	{
		if (PaneName == FName(*GetPaneName(PaneIndex)))
		{
			return Viewports[PaneIndex];
		}
	}
	return TSharedPtr<SLevelViewport>();
}

bool FLevelViewportLayout::IsLevelViewportVisible(FName InViewportConfigKey) const
{
	if (!bForeground)
	{
		return false;
	}
	TSharedPtr<SLevelViewport> Maximized = MaximizedViewport.Pin();
	return !Maximized.IsValid() || Maximized->GetConfigKey() == InViewportConfigKey;
}

void FLevelViewportLayout::RequestMaximizeViewport(FName ViewportToMaximize, bool bWantMaximize, bool, bool)
{
	for (const TSharedPtr<SLevelViewport>& Viewport : Viewports)
	{
		if (Viewport->GetConfigKey() != ViewportToMaximize)
		{
			continue;
		}
		Panes->ClearContent();
		if (bWantMaximize)
		{
			MaximizedViewport = Viewport;
			Panes->SetContent(Viewport.ToSharedRef());
		}
		else
		{
			MaximizedViewport.Reset();
			Panes->SetContent(ArrangePanes());
		}
		return;
	}
}

bool FLevelViewportLayout::IsViewportMaximized(const SLevelViewport& InViewport) const
{
	return MaximizedViewport.Pin().Get() == &InViewport;
}
