// Copyright The Tintmill authors. All rights reserved.

#include "Layout/WidgetPath.h"
#include "Widgets/SWindow.h"

FWidgetPath::FWidgetPath()
	: Widgets(EVisibility::Visible)
{}

FWidgetPath::FWidgetPath(TSharedPtr<SWindow> InTopLevelWindow, const FArrangedChildren& InWidgetPath)
	: Widgets(InWidgetPath)
	, TopLevelWindow(InTopLevelWindow)
{}

FWidgetPath FWidgetPath::GetPathDownTo(TSharedRef<const SWidget> MarkerWidget) const
{
	FArrangedChildren ClippedPath(EVisibility::Visible);
	for (int32 Index = 0; Index < Widgets.Num(); ++Index)
	{
		ClippedPath.AddWidget(EVisibility::Visible, Widgets[Index]);
		if (&Widgets[Index].Widget.Get() == &MarkerWidget.Get())
		{
			return FWidgetPath(TopLevelWindow, ClippedPath);
		}
	}
	return FWidgetPath();
}

bool FWidgetPath::ContainsWidget(TSharedRef<const SWidget> WidgetToFind) const
{
	return ContainsWidget(&WidgetToFind.Get());
}

bool FWidgetPath::ContainsWidget(const SWidget* WidgetToFind) const
{
	for (int32 Index = 0; Index < Widgets.Num(); ++Index)
	{
		if (&Widgets[Index].Widget.Get() == WidgetToFind)
		{
			return true;
		}
	}
	return false;
}

TOptional<FArrangedWidget> FWidgetPath::FindArrangedWidget(TSharedRef<const SWidget> WidgetToFind) const
{
	for (int32 Index = 0; Index < Widgets.Num(); ++Index)
	{
		if (&Widgets[Index].Widget.Get() == &WidgetToFind.Get())
		{
			return TOptional<FArrangedWidget>(Widgets[Index]);
		}
	}
	return TOptional<FArrangedWidget>();
}

TSharedRef<SWidget> FWidgetPath::GetLastWidget() const
{
	check(IsValid());
	return Widgets.Last().Widget;
}

TSharedRef<SWindow> FWidgetPath::GetWindow() const
{
	check(IsValid());
	return TopLevelWindow.ToSharedRef();
}

FString FWidgetPath::ToString() const
{
	FString Text;
	for (int32 Index = Widgets.Num() - 1; Index >= 0; --Index)
	{
		Text += Widgets[Index].ToString();
		Text += TEXT("\n");
	}
	return Text;
}

FWeakWidgetPath::FWeakWidgetPath(const FWidgetPath& InWidgetPath)
	: Window(InWidgetPath.TopLevelWindow)
{
	for (int32 Index = 0; Index < InWidgetPath.Widgets.Num(); ++Index)
	{
		Widgets.Add(TWeakPtr<SWidget>(InWidgetPath.Widgets[Index].Widget));
	}
}

FWidgetPath FWeakWidgetPath::ToWidgetPath(EInterruptedPathHandling::Type InterruptedPathHandling) const
{
	const TSharedPtr<SWindow> PinnedWindow = Window.Pin();
	if (!PinnedWindow.IsValid() || PinnedWindow->IsDestroyed() || Widgets.Num() == 0)
	{
		return FWidgetPath();
	}
	FArrangedChildren Path(EVisibility::All);
	FGeometry ParentGeometry = PinnedWindow->GetWindowGeometryInScreen();
	Path.AddWidget(EVisibility::Visible, FArrangedWidget(PinnedWindow.ToSharedRef(), ParentGeometry));
	for (int32 WidgetIndex = 1; WidgetIndex < Widgets.Num(); ++WidgetIndex)
	{
		const TSharedPtr<SWidget> Widget = Widgets[WidgetIndex].Pin();
		bool bFound = false;
		if (Widget.IsValid())
		{
			FArrangedChildren ArrangedChildren(EVisibility::Visible);
			Path.Last().Widget->ArrangeChildren(ParentGeometry, ArrangedChildren);
			for (int32 Index = 0; Index < ArrangedChildren.Num() && !bFound; ++Index)
			{
				if (&ArrangedChildren[Index].Widget.Get() == Widget.Get())
				{
					ParentGeometry = ArrangedChildren[Index].Geometry;
					Path.AddWidget(EVisibility::Visible, ArrangedChildren[Index]);
					bFound = true;
				}
			}
		}
		if (!bFound)
		{
			return InterruptedPathHandling == EInterruptedPathHandling::Truncate ? FWidgetPath(PinnedWindow, Path) : FWidgetPath();
		}
	}
	return FWidgetPath(PinnedWindow, Path);
}

bool FWeakWidgetPath::ContainsWidget(const TSharedRef<const SWidget>& SomeWidget) const
{
	for (int32 Index = 0; Index < Widgets.Num(); ++Index)
	{
		if (Widgets[Index].Pin().Get() == &SomeWidget.Get())
		{
			return true;
		}
	}
	return false;
}
