// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Framework/Application/SlateApplication.h"
#include "StandIn/SlateDriver.h"
#include "Support/SlateWidgets.h"
#include "gtest/gtest.h"

typedef std::vector<std::string> FNotes;

/** Slate with one window of 400 by 300 at the origin. */
class FSlateFixture : public testing::Test
{
protected:
	void SetUp() override { FSlateApplication::Create(); }

	void TearDown() override
	{
		Window.Reset();
		FSlateApplication::Shutdown();
	}

	/** Shows a widget in the window and paints it. */
	void Show(const TSharedRef<SWidget>& Content)
	{
		Window = SNew(SWindow)
					 .CreateTitleBar(false)
					 .AutoCenter(EAutoCenter::None)
					 .ClientSize(FVector2D(400, 300))
					 .ScreenPosition(FVector2D(0, 0))[Content];
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		StandIn::AdvanceTime(0.0f);
	}

	/** Returns the notes made since the last call. */
	FNotes TakeNotes()
	{
		FNotes Taken;
		Taken.swap(Notes);
		return Taken;
	}

	/** Returns the texts that a window painted last, in drawing order. */
	static FNotes GetPaintedTexts(const TSharedRef<SWindow>& InWindow)
	{
		FNotes Texts;
		for (const int32 Index : InWindow->GetElementList().GetDrawOrder())
		{
			const FSlateDrawElement& Element = InWindow->GetElementList().GetElements()[Index];
			if (Element.GetElementType() == EElementType::ET_Text)
			{
				Texts.push_back(ToStd(Element.GetText()));
			}
		}
		return Texts;
	}

	static FSlateApplication& App() { return FSlateApplication::Get(); }

	TSharedPtr<SWindow> Window;
	FNotes Notes;
};
