// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/WindowPainter.h"

#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Host/Painter/Canvas.h"
#include "Host/PictureComparison.h"
#include "StandIn/BrushShape.h"
#include "Widgets/SViewport.h"

#include <random>

using namespace TintmillHost;

namespace
{
const FIntPoint DesktopSize(240, 160);

/** A viewport without a widget. */
class FPlainViewport : public ISlateViewport
{
public:
	virtual FIntPoint GetSize() const override { return FIntPoint(8, 8); }
	virtual bool RequiresVsync() const override { return false; }
};

/** What is needed to add one element again. */
struct FThing
{
	int Kind = 0;
	FPaintGeometry Place;
	FLinearColor Color;
	int Layer = 0;
	bool bClipped = false;
	int Choice = 0;
};

class WindowPainter : public testing::Test
{
protected:
	WindowPainter()
	{
		Painter.SetViewportPictures([this](const ISlateViewport&, const FIntPoint&) {
			return FPictureView{FIntPoint(8, 8), ViewportPixels.GetData(), ViewportRevision};
		});
		Main->Resize(FVector2D(DesktopSize.X, DesktopSize.Y));
		Popup->Resize(FVector2D(60, 50));
		ChangeViewport();
	}

	int Roll(int Count) { return static_cast<int>(Random() % static_cast<unsigned>(Count)); }

	float RollFloat(float Most) { return static_cast<float>(Random() % 1000) * Most / 1000.0f; }

	void ChangeViewport()
	{
		ViewportPixels.Reset();
		for (int Index = 0; Index < 64; ++Index)
		{
			ViewportPixels.Add(FColor(uint8(Roll(256)), uint8(Roll(256)), uint8(Roll(256))));
		}
		++ViewportRevision;
	}

	FThing MakeThing()
	{
		FThing Thing;
		Thing.Kind = Roll(5);
		Thing.Place = FPaintGeometry(FVector2D(RollFloat(260.0f) - 20.0f, RollFloat(170.0f) - 10.0f),
			FVector2D(RollFloat(80.0f), RollFloat(40.0f)), 1.0f + 0.5f * static_cast<float>(Roll(2)));
		Thing.Color = FLinearColor(RollFloat(1.0f), RollFloat(1.0f), RollFloat(1.0f), 0.25f + RollFloat(0.75f));
		Thing.Layer = Roll(4);
		Thing.bClipped = Roll(3) == 0;
		Thing.Choice = Roll(16);
		return Thing;
	}

	void AddThing(FSlateWindowElementList& List, const FThing& Thing) const
	{
		const uint32 Layer = static_cast<uint32>(Thing.Layer);
		if (Thing.bClipped)
		{
			List.PushClip(FSlateClippingZone(FSlateRect(30.0f, 20.0f, 150.0f, 100.5f)));
		}
		const StandIn::FShapeBrush Shape(
			static_cast<StandIn::EBrushShape>(Thing.Choice), FVector2D(16, 16), FSlateColor(FLinearColor::White), 3.0f);
		const FSlateColorBrush Plain(FLinearColor::White);
		switch (Thing.Kind)
		{
		case 0:
			FSlateDrawElement::MakeBox(List, Layer, Thing.Place, &Plain, ESlateDrawEffect::None, Thing.Color);
			break;
		case 1:
			FSlateDrawElement::MakeBox(List, Layer, Thing.Place, &Shape, ESlateDrawEffect::None, Thing.Color);
			break;
		case 2:
			FSlateDrawElement::MakeText(List, Layer, Thing.Place, FString::Printf(TEXT("jQ%d \u00C5\u0329f"), Thing.Choice),
				FCoreStyle::GetDefaultFontStyle(Thing.Choice % 2 ? "Bold" : "Italic", 7 + Thing.Choice), ESlateDrawEffect::None,
				Thing.Color);
			break;
		case 3:
			FSlateDrawElement::MakeLines(List, Layer, Thing.Place,
				{FVector2D(0, 0), FVector2D(30, 7), FVector2D(Thing.Choice, 4), FVector2D(25, 30)}, ESlateDrawEffect::None, Thing.Color,
				true, 1.0f + 0.25f * static_cast<float>(Thing.Choice));
			break;
		default:
			FSlateDrawElement::MakeViewport(List, Layer, Thing.Place, Viewport, ESlateDrawEffect::None, Thing.Color);
			break;
		}
		if (Thing.bClipped)
		{
			List.PopClip();
		}
	}

	/** One of the things that happen from frame to frame. */
	void ChangeSomething()
	{
		std::vector<FThing>& Things = Roll(4) == 0 ? PopupThings : MainThings;
		const size_t Place = Things.empty() ? 0 : static_cast<size_t>(Roll(static_cast<int>(Things.size())));
		switch (Roll(7))
		{
		case 0:
			Things.insert(Things.begin() + static_cast<std::ptrdiff_t>(Place), MakeThing());
			break;
		case 1:
			if (!Things.empty())
			{
				Things.erase(Things.begin() + static_cast<std::ptrdiff_t>(Place));
			}
			break;
		case 2:
			if (!Things.empty())
			{
				Things[Place] = MakeThing();
			}
			break;
		case 3:
			std::shuffle(Things.begin(), Things.end(), Random);
			break;
		case 4:
			Popup->MoveWindowTo(FVector2D(RollFloat(200.0f), RollFloat(120.0f)));
			break;
		case 5:
			bPopupShown = !bPopupShown;
			break;
		default:
			ChangeViewport();
			break;
		}
	}

	/** Has the windows painted by Slate, as it were. */
	FWindowShot MakeShot(double Scale)
	{
		FWindowShot Shot;
		Shot.Size = DesktopSize;
		Shot.Scale = Scale;
		Fill(Main, MainThings);
		Shot.Windows.Add(Main);
		if (bPopupShown)
		{
			Fill(Popup, PopupThings);
			Shot.Windows.Add(Popup);
		}
		return Shot;
	}

	void Fill(const TSharedRef<SWindow>& Window, const std::vector<FThing>& Things) const
	{
		Window->GetElementList().ResetElementList();
		for (const FThing& Thing : Things)
		{
			AddThing(Window->GetElementList(), Thing);
		}
	}

	static int64 CountPixels(const TArray<FIntRect>& Areas)
	{
		int64 Count = 0;
		for (const FIntRect& Area : Areas)
		{
			Count += Area.Area();
		}
		return Count;
	}

	std::mt19937 Random{11};
	std::shared_ptr<FTextLayouts> Layouts = std::make_shared<FTextLayouts>();
	FElementPainter Painter{Layouts};
	FKeptPicture Kept{Painter};
	FPicture Picture;
	const TSharedRef<SWindow> Main = SNew(SWindow).CreateTitleBar(false);
	const TSharedRef<SWindow> Popup = SWindow::MakePopupWindow(FVector2D(40, 30), EWindowType::Menu);
	const TSharedPtr<FPlainViewport> Viewport = MakeShareable(new FPlainViewport());
	TArray<FColor> ViewportPixels;
	uint64 ViewportRevision = 0;
	std::vector<FThing> MainThings;
	std::vector<FThing> PopupThings;
	bool bPopupShown = false;
};
}

TEST_F(WindowPainter, PaintsOnlyWhatChangedIntoThePictureThatPaintingAllWouldMake)
{
	for (int Step = 0; Step < 400; ++Step)
	{
		ChangeSomething();
		const FWindowShot Shot = MakeShot(1.0);
		Kept.Update(Shot, Picture);
		ASSERT_TRUE(IsExactly(Picture, PaintWindows(Painter, Shot))) << "step " << Step;
	}
}

TEST_F(WindowPainter, PaintsOnlyWhatChangedAtAFractionalScaleToo)
{
	for (int Step = 0; Step < 150; ++Step)
	{
		ChangeSomething();
		const FWindowShot Shot = MakeShot(1.5);
		Kept.Update(Shot, Picture);
		ASSERT_TRUE(IsExactly(Picture, PaintWindows(Painter, Shot))) << "step " << Step;
	}
}

TEST_F(WindowPainter, PaintsEverythingAtFirst)
{
	EXPECT_EQ(Kept.Update(MakeShot(1.0), Picture), TArray<FIntRect>({FIntRect(FIntPoint(0, 0), DesktopSize)}));
}

TEST_F(WindowPainter, PaintsNothingWhereNothingChanged)
{
	MainThings = {MakeThing(), MakeThing(), MakeThing()};
	Kept.Update(MakeShot(1.0), Picture);
	EXPECT_EQ(Kept.Update(MakeShot(1.0), Picture).Num(), 0);
}

TEST_F(WindowPainter, PaintsNoMoreThanTheAreaOfABoxThatChangedItsColor)
{
	FThing Box;
	Box.Place = FPaintGeometry(FVector2D(20, 30), FVector2D(40, 10), 1.0f);
	MainThings = {Box};
	Kept.Update(MakeShot(1.0), Picture);
	MainThings[0].Color = FLinearColor(1.0f, 0.0f, 0.0f);
	EXPECT_EQ(Kept.Update(MakeShot(1.0), Picture), TArray<FIntRect>({FIntRect(20, 30, 60, 40)}));
}

TEST_F(WindowPainter, PaintsAViewportAgainWhenItsPictureIsAnother)
{
	FThing Shown;
	Shown.Kind = 4;
	Shown.Place = FPaintGeometry(FVector2D(20, 30), FVector2D(40, 10), 1.0f);
	MainThings = {Shown};
	Kept.Update(MakeShot(1.0), Picture);
	++ViewportRevision;
	EXPECT_EQ(Kept.Update(MakeShot(1.0), Picture), TArray<FIntRect>({FIntRect(20, 30, 60, 40)}));
}

TEST_F(WindowPainter, PaintsAPopupWithItsShadowAgainWhenItCloses)
{
	bPopupShown = true;
	Kept.Update(MakeShot(1.0), Picture);
	bPopupShown = false;
	EXPECT_GT(CountPixels(Kept.Update(MakeShot(1.0), Picture)), 60 * 50);
}

TEST_F(WindowPainter, PaintsEverythingAfterAChangeOfScale)
{
	Kept.Update(MakeShot(1.0), Picture);
	EXPECT_EQ(CountPixels(Kept.Update(MakeShot(2.0), Picture)), 4 * DesktopSize.X * DesktopSize.Y);
}
