// Copyright The Tintmill authors. All rights reserved.

#include "LevelViewportLayout.h"

#include "SLevelEditor.h"
#include "SLevelViewport.h"
#include "SLevelViewportPanes.h"
#include "StandIn/LevelEditorPanes.h"
#include "Widgets/Layout/SSplitter.h"

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

/** Returns the numbers of panes, or groups of panes, that lie side by side or above each other, as the weights of a layout go. */
TArray<int32> GetDivisions(const FPaneLayout& PaneLayout)
{
	if (PaneLayout.NumPanes == 1)
	{
		return {};
	}
	switch (PaneLayout.Shape)
	{
	case EPaneShape::Row:
	case EPaneShape::Column:
		return {PaneLayout.NumPanes};
	case EPaneShape::Grid:
		// The rows, and the columns of both.
		return {2, 2};
	default:
		return {2, PaneLayout.NumPanes - 1};
	}
}
}

FLevelViewportLayout::FLevelViewportLayout(const FName& InLayoutTypeName)
	: LayoutTypeName(FindPaneLayout(InLayoutTypeName).Name)
	, bForeground(true)
{
	for (const int32 Parts : GetDivisions(FindPaneLayout(InLayoutTypeName)))
	{
		for (int32 Part = 0; Part < Parts; ++Part)
		{
			Shares.Add(1.0f / static_cast<float>(Parts));
		}
	}
}

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

TSharedRef<SWidget> FLevelViewportLayout::Divide(const FWidgets& Widgets, bool bSideBySide, int32 FirstShare)
{
	if (Widgets.Num() == 1)
	{
		return Widgets[0];
	}
	const TSharedRef<SSplitter> Splitter = SNew(SSplitter)
											   .Orientation(bSideBySide ? Orient_Horizontal : Orient_Vertical)
											   .PhysicalSplitterHandleSize(4.0f)
											   .OnSplitterFinishedResizing(this, &FLevelViewportLayout::OnDragged);
	for (int32 Index = 0; Index < Widgets.Num(); ++Index)
	{
		const int32 Share = FirstShare + Index;
		Splitter->AddSlot()
			.Value(TAttribute<float>::Create(TAttribute<float>::FGetter::CreateSP(this, &FLevelViewportLayout::GetShare, Share)))
			.OnSlotResized(SSplitter::FOnSlotResized::CreateSP(this, &FLevelViewportLayout::OnShareChanged, Share))[Widgets[Index]];
	}
	return Splitter;
}

TSharedRef<SWidget> FLevelViewportLayout::ArrangePanes()
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
		return Divide(All, true, 0);
	case EPaneShape::Column:
		return Divide(All, false, 0);
	case EPaneShape::FirstLeft:
		return Divide(FWidgets{All[0], Divide(Others, false, 2)}, true, 0);
	case EPaneShape::FirstRight:
		return Divide(FWidgets{Divide(Others, false, 2), All[0]}, true, 0);
	case EPaneShape::FirstTop:
		return Divide(FWidgets{All[0], Divide(Others, true, 2)}, false, 0);
	case EPaneShape::FirstBottom:
		return Divide(FWidgets{Divide(Others, true, 2), All[0]}, false, 0);
	case EPaneShape::Grid:
		break;
	}
	// One handle for both rows keeps the panes aligned.
	return Divide(FWidgets{Divide(FWidgets{All[0], All[1]}, true, 2), Divide(FWidgets{All[2], All[3]}, true, 2)}, false, 0);
}

bool FLevelViewportLayout::SetPaneShares(const TArray<float>& InShares)
{
	if (InShares.Num() != Shares.Num()
		|| InShares.FindByPredicate([](const float Share) { return !(Share > 0.0f) || Share > MAX_flt; }) != nullptr)
	{
		return false;
	}
	int32 First = 0;
	for (const int32 Parts : GetDivisions(FindPaneLayout(LayoutTypeName)))
	{
		float Sum = 0.0f;
		for (int32 Part = 0; Part < Parts; ++Part)
		{
			Sum += InShares[First + Part];
		}
		for (int32 Part = 0; Part < Parts; ++Part)
		{
			Shares[First + Part] = InShares[First + Part] / Sum;
		}
		First += Parts;
	}
	return true;
}

void FLevelViewportLayout::OnDragged()
{
	StandIn::OnPanesArranged().Broadcast();
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
		StandIn::OnPanesArranged().Broadcast();
		return;
	}
}

bool FLevelViewportLayout::IsViewportMaximized(const SLevelViewport& InViewport) const
{
	return MaximizedViewport.Pin().Get() == &InViewport;
}
