// Copyright The Tintmill authors. All rights reserved.

#include "Styling/SlateStyle.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "StandIn/BrushShape.h"
#include "StandIn/Registrations.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateIconFinder.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"
#include "Support/LogCapture.h"
#include "Support/SlateWidgets.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "gtest/gtest.h"

namespace
{
/** A style set that is registered while it lives. */
class FRegisteredStyle : public FSlateStyleSet
{
public:
	explicit FRegisteredStyle(const TCHAR* Name)
		: FSlateStyleSet(FName(Name))
	{
		FSlateStyleRegistry::RegisterSlateStyle(*this);
	}
	~FRegisteredStyle() override { FSlateStyleRegistry::UnRegisterSlateStyle(*this); }
};

/** Counts how many of them live. */
struct FCountedBrush : public FSlateColorBrush
{
	explicit FCountedBrush(int32& InCount)
		: FSlateColorBrush(FLinearColor::White)
		, Count(InCount)
	{
		++Count;
	}
	~FCountedBrush() override { --Count; }
	int32& Count;
};

FSlateImageBrush* MakeImage(const TCHAR* Path)
{
	return new FSlateImageBrush(FString(Path), FVector2D(20, 20));
}
}

TEST(FSlateStyleSet, JoinsContentRootRelativeNameAndExtension)
{
	FSlateStyleSet Style(FName(TEXT("JoinTest")));
	Style.SetContentRoot(TEXT("/Plugins/Some/Icons"));
	EXPECT_EQ("/Plugins/Some/Icons/Icon_20x.png", ToStd(Style.RootToContentDir("Icon_20x", TEXT(".png"))));
	EXPECT_EQ("/Plugins/Some/Icons/Icon_20x.png", ToStd(Style.RootToContentDir(TEXT("Icon_20x"), TEXT(".png"))));
	EXPECT_EQ("/Plugins/Some/Icons/Icon_20x.png", ToStd(Style.RootToContentDir(FString(TEXT("Icon_20x")), TEXT(".png"))));
	EXPECT_EQ("/Plugins/Some/Icons/Icon_20x", ToStd(Style.RootToContentDir("Icon_20x")));
}

TEST(FSlateStyleSet, PutsNoSecondSlashBehindARootThatEndsInOne)
{
	FSlateStyleSet Style(FName(TEXT("SlashTest")));
	Style.SetContentRoot(TEXT("/Root/"));
	EXPECT_EQ("/Root/A.png", ToStd(Style.RootToContentDir("A", TEXT(".png"))));
}

TEST(FSlateStyleSet, GivesBackTheBrushThatWasSet)
{
	FSlateStyleSet Style(FName(TEXT("BrushTest")));
	FSlateImageBrush* Brush = MakeImage(TEXT("/Icons/A.png"));
	Style.Set("Some.Brush", Brush);
	EXPECT_EQ(Brush, Style.GetBrush("Some.Brush"));
	EXPECT_EQ(Brush, Style.GetBrush("Some", ".Brush"));
	EXPECT_EQ("/Icons/A.png", ToStd(Brush->GetResourceName()));
}

TEST(FSlateStyleSet, DestroysItsBrushes)
{
	int32 Count = 0;
	{
		FSlateStyleSet Style(FName(TEXT("OwnTest")));
		Style.Set("A", new FCountedBrush(Count));
		Style.Set("B", new FCountedBrush(Count));
		EXPECT_EQ(2, Count);
	}
	EXPECT_EQ(0, Count);
}

TEST(FSlateStyleSet, KeepsAReplacedBrushAliveForThoseWhoHoldIt)
{
	int32 Count = 0;
	{
		FSlateStyleSet Style(FName(TEXT("ReplaceTest")));
		Style.Set("A", new FCountedBrush(Count));
		FCountedBrush* Second = new FCountedBrush(Count);
		Style.Set("A", Second);
		EXPECT_EQ(2, Count);
		EXPECT_EQ(Second, Style.GetBrush("A"));
	}
	EXPECT_EQ(0, Count);
}

TEST(FSlateStyleSet, AnswersAMissingBrushWithTheDefaultOneAndAWarning)
{
	const FSlateStyleSet Style(FName(TEXT("MissTest")));
	const FLogCapture Log;
	EXPECT_EQ(Style.GetDefaultBrush(), Style.GetBrush("No.Such"));
	ASSERT_EQ(1u, Log.TextsOf("LogSlateStyle").size());
	EXPECT_NE(std::string::npos, Log.TextsOf("LogSlateStyle")[0].find("'MissTest' Style: 'Unable to find Brush 'No.Such'.'"));
}

TEST(FSlateStyleSet, AnswersAMissingOptionalBrushWithTheGivenOneWithoutALog)
{
	const FSlateStyleSet Style(FName(TEXT("OptionalTest")));
	const FLogCapture Log;
	EXPECT_EQ(FStyleDefaults::GetNoBrush(), Style.GetOptionalBrush("No.Such"));
	EXPECT_EQ(nullptr, Style.GetOptionalBrush("No.Such", nullptr, nullptr));
	EXPECT_EQ(0u, Log.TextsOf("LogSlateStyle").size());
}

TEST(FSlateStyleSet, KeepsValuesOfEveryKindApart)
{
	FSlateStyleSet Style(FName(TEXT("KindTest")));
	Style.Set("Same", 1.5f);
	Style.Set("Same", FVector2D(1, 2));
	Style.Set("Same", FMargin(3));
	Style.Set("Same", FLinearColor(0.25f, 0.5f, 0.75f, 1.0f));
	EXPECT_EQ(1.5f, Style.GetFloat("Same"));
	EXPECT_EQ(FVector2D(1, 2), Style.GetVector("Same"));
	EXPECT_EQ(FMargin(3), Style.GetMargin("Same"));
	EXPECT_EQ(0.5f, Style.GetColor("Same").G);
}

TEST(FSlateStyleSet, GivesTheTypesDefaultForAnUnknownWidgetStyle)
{
	const FSlateStyleSet Style(FName(TEXT("WidgetTest")));
	EXPECT_EQ(&FButtonStyle::GetDefault(), &Style.GetWidgetStyle<FButtonStyle>("No.Such"));
}

TEST(FSlateStyleSet, DoesNotGiveAWidgetStyleOfAnotherType)
{
	FSlateStyleSet Style(FName(TEXT("TypeTest")));
	Style.Set("Some", FButtonStyle());
	EXPECT_TRUE(Style.HasWidgetStyle<FButtonStyle>("Some"));
	EXPECT_FALSE(Style.HasWidgetStyle<FTextBlockStyle>("Some"));
}

TEST(FSlateStyleRegistry, FindsASetByNameWhileItIsRegistered)
{
	{
		const FRegisteredStyle Style(TEXT("FindTest"));
		EXPECT_EQ(&Style, FSlateStyleRegistry::FindSlateStyle(FName(TEXT("findtest"))));
	}
	EXPECT_EQ(nullptr, FSlateStyleRegistry::FindSlateStyle(FName(TEXT("FindTest"))));
}

TEST(FSlateStyleRegistry, TakesASetOutByNameOnce)
{
	FSlateStyleSet Style(FName(TEXT("OutTest")));
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	FSlateStyleRegistry::UnRegisterSlateStyle(FName(TEXT("OutTest")));
	FSlateStyleRegistry::UnRegisterSlateStyle(FName(TEXT("OutTest")));
	EXPECT_EQ(nullptr, FSlateStyleRegistry::FindSlateStyle(FName(TEXT("OutTest"))));
}

TEST(FSlateStyleRegistryDeathTest, RefusesASecondSetOfOneName)
{
	const FRegisteredStyle First(TEXT("TwiceTest"));
	const FSlateStyleSet Second(FName(TEXT("TwiceTest")));
	EXPECT_DEATH(FSlateStyleRegistry::RegisterSlateStyle(Second), "Assertion failed: ExistingStyle == nullptr");
}

TEST(FSlateStyleRegistry, ListsItsSetsAmongTheRegistrations)
{
	const FRegisteredStyle Style(TEXT("ListTest"));
	bool bFound = false;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		bFound = bFound
			|| (Registration.Registry == TEXT("SlateStyle") && Registration.Name == TEXT("ListTest") && Registration.Owner == &Style);
	}
	EXPECT_TRUE(bFound);
}

TEST(FSlateIcon, ResolvesItsBrushWhenAskedNotBefore)
{
	const FSlateIcon Icon(FName(TEXT("LateTest")), FName(TEXT("Some.Icon")));
	EXPECT_EQ(FStyleDefaults::GetNoBrush(), Icon.GetIcon());
	FRegisteredStyle Style(TEXT("LateTest"));
	FSlateImageBrush* Large = MakeImage(TEXT("L"));
	FSlateImageBrush* Small = MakeImage(TEXT("S"));
	Style.Set("Some.Icon", Large);
	Style.Set("Some.Icon.Small", Small);
	EXPECT_EQ(Large, Icon.GetIcon());
	EXPECT_EQ(Small, Icon.GetSmallIcon());
}

TEST(FSlateIcon, IsNotSetUnlessItWasGivenNames)
{
	EXPECT_FALSE(FSlateIcon().IsSet());
	EXPECT_TRUE(FSlateIcon(FName(TEXT("A")), FName(TEXT("B"))).IsSet());
	EXPECT_EQ(FStyleDefaults::GetNoBrush(), FSlateIcon().GetIcon());
}

TEST(FSlateIconFinder, FindsAClassIconInAnyRegisteredSet)
{
	FRegisteredStyle Style(TEXT("IconTest"));
	Style.Set("ClassIcon.Package", MakeImage(TEXT("P")));
	const FSlateIcon Icon = FSlateIconFinder::FindIconForClass(UPackage::StaticClass());
	EXPECT_EQ("IconTest", ToStd(Icon.GetStyleSetName()));
	EXPECT_EQ("ClassIcon.Package", ToStd(Icon.GetStyleName()));
}

TEST(FSlateIconFinder, GoesUpTheSuperClassesToTheNearestIcon)
{
	FRegisteredStyle Style(TEXT("SuperTest"));
	FSlateImageBrush* StructIcon = MakeImage(TEXT("S"));
	Style.Set("ClassThumbnail.Object", MakeImage(TEXT("O")));
	Style.Set("ClassThumbnail.Struct", StructIcon);
	EXPECT_EQ(StructIcon, FSlateIconFinder::FindCustomIconBrushForClass(UClass::StaticClass(), TEXT("ClassThumbnail")));
}

TEST(FSlateIconFinder, FallsBackToTheDefaultNameThenToNothing)
{
	EXPECT_EQ(nullptr, FSlateIconFinder::FindIconBrushForClass(UPackage::StaticClass()));
	FRegisteredStyle Style(TEXT("DefaultTest"));
	FSlateImageBrush* Default = MakeImage(TEXT("D"));
	Style.Set("ClassIcon.Default", Default);
	EXPECT_EQ(Default, FSlateIconFinder::FindIconBrushForClass(UPackage::StaticClass(), FName(TEXT("ClassIcon.Default"))));
	EXPECT_FALSE(FSlateIconFinder::FindIconForClass(UPackage::StaticClass()).IsSet());
}

TEST(FCoreStyle, IsRegisteredUnderItsNameFromTheFirstUseOn)
{
	const ISlateStyle& Style = FCoreStyle::Get();
	EXPECT_EQ(&Style, FSlateStyleRegistry::FindSlateStyle(FName(TEXT("CoreStyle"))));
}

TEST(FCoreStyle, HasTheThemesColours)
{
	EXPECT_EQ(FLinearColor(0.728f, 0.364f, 0.003f, 1.0f), FCoreStyle::Get().GetSlateColor("SelectionColor").GetSpecifiedColor());
	EXPECT_EQ(9, FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("Menu.Label").Font.Size);
	EXPECT_EQ(FMargin(18.0f, 2.0f, 4.0f, 4.0f), FCoreStyle::Get().GetMargin("Menu.Block.IndentedPadding"));
}

TEST(FShapeBrush, TellsItsShapeAndRadiusEvenWhenCopiedAsAPlainBrush)
{
	const FSlateBrush Copy = StandIn::FShapeBrush(StandIn::EBrushShape::RoundedBox, FVector2D(16, 16), FLinearColor::White, 4.0f);
	float Radius = 0.0f;
	EXPECT_EQ(StandIn::EBrushShape::RoundedBox, StandIn::GetBrushShape(Copy, &Radius));
	EXPECT_EQ(4.0f, Radius);
	EXPECT_EQ(StandIn::EBrushShape::None, StandIn::GetBrushShape(*FStyleDefaults::GetNoBrush()));
}

TEST(FSlateBrush, HasTheDefaultsOfAnImageWithoutOne)
{
	const FSlateBrush Brush;
	EXPECT_EQ(FVector2D(32, 32), Brush.ImageSize);
	EXPECT_EQ(ESlateBrushDrawType::Image, Brush.GetDrawType());
	EXPECT_TRUE(Brush.GetResourceName().IsNone());
	EXPECT_EQ(nullptr, Brush.GetResourceObject());
}

TEST(FSlateColor, UsesTheForegroundInForceWhenAskedTo)
{
	FWidgetStyle Style;
	Style.SetForegroundColor(FSlateColor(FLinearColor(0.1f, 0.2f, 0.3f, 1.0f)));
	EXPECT_EQ(0.2f, FSlateColor::UseForeground().GetColor(Style).G);
	EXPECT_FALSE(FSlateColor::UseForeground().IsColorSpecified());
	EXPECT_EQ(0.5f, FSlateColor(FLinearColor(0, 0.5f, 0, 1)).GetColor(Style).G);
}

TEST(FSlateColor, FollowsASharedColour)
{
	const TSharedRef<FLinearColor> Shared = MakeShareable(new FLinearColor(0, 0, 0, 1));
	const FSlateColor Color(Shared);
	Shared->R = 0.5f;
	EXPECT_EQ(0.5f, Color.GetSpecifiedColor().R);
}
