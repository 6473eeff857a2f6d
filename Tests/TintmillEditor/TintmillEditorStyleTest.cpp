// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditorStyle.h"

#include "TintmillEditor/ModuleFixture.h"
#include "Support/Printers.h"

#include "ClassIconFinder.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "StandIn/EnginePlugins.h"
#include "StandIn/Notices.h"
#include "Styling/SlateIconFinder.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "TintmillObject.h"

#include <gtest/gtest.h>

#include <fstream>

// The icons of look assets: the style set's brushes, the files behind them, and how long it is registered.

namespace
{
const FName StyleName(TEXT("TintmillStyle"));
const FName IconName(TEXT("ClassIcon.TintmillObject"));
const FName ThumbnailName(TEXT("ClassThumbnail.TintmillObject"));

class FTintmillEditorStyleSet : public FModuleFixture
{
protected:
	virtual void TearDown() override
	{
		StandIn::SetEnginePluginsDir(FString());
		std::filesystem::remove_all(Project.NativePath("Plugins"));
		IPluginManager::Get().RefreshPluginsList();
	}

	static const ISlateStyle* FindStyle() { return FSlateStyleRegistry::FindSlateStyle(StyleName); }

	/** A brush of the registered style; null if it has none of that name. */
	static const FSlateBrush* FindBrush(FName Name) { return FindStyle()->GetOptionalBrush(Name, nullptr, nullptr); }

	static FString GetIconsDir()
	{
		return FPaths::Combine(IPluginManager::Get().FindPlugin(TEXT("Tintmill"))->GetBaseDir(), TEXT("Editor/Icons"));
	}

	/** Width and height that a PNG file says it has. */
	static std::vector<int> ReadPngSize(const FString& FileName)
	{
		std::ifstream File(std::filesystem::path(*FileName), std::ios::binary);
		unsigned char Head[24] = {};
		File.read(reinterpret_cast<char*>(Head), sizeof(Head));
		return {(Head[16] << 24) + (Head[17] << 16) + (Head[18] << 8) + Head[19],
			(Head[20] << 24) + (Head[21] << 16) + (Head[22] << 8) + Head[23]};
	}

	/** Has the plug-in manager find no plug-ins of the engine. */
	void LosePlugin() const
	{
		StandIn::SetEnginePluginsDir(Project.Path("NoPlugins"));
		IPluginManager::Get().RefreshPluginsList();
	}

	/** Starts the engine without plug-ins, so that the style is made by the test alone. */
	void StartWithoutModule()
	{
		Options.bLoadPlugins = false;
		PreInit();
	}
};

TEST_F(FTintmillEditorStyleSet, IsNotThereBeforeTheModule)
{
	StartWithoutModule();
	EXPECT_EQ(FindStyle(), nullptr);
}

TEST_F(FTintmillEditorStyleSet, IsRegisteredUnderItsName)
{
	PreInit();
	ASSERT_NE(FindStyle(), nullptr);
	EXPECT_EQ(FindStyle()->GetStyleSetName(), StyleName);
}

TEST_F(FTintmillEditorStyleSet, IsGoneAfterTheModule)
{
	PreInit();
	FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"));
	EXPECT_EQ(FindStyle(), nullptr);
}

TEST_F(FTintmillEditorStyleSet, HasTwoBrushes)
{
	PreInit();
	TArray<const FSlateBrush*> Brushes;
	FindStyle()->GetResources(Brushes);
	EXPECT_EQ(Brushes.Num(), 2);
}

TEST_F(FTintmillEditorStyleSet, TheThumbnailIsSetFirst)
{
	PreInit();
	TArray<const FSlateBrush*> Brushes;
	FindStyle()->GetResources(Brushes);
	EXPECT_TRUE(Brushes[0] == FindBrush(ThumbnailName) && Brushes[1] == FindBrush(IconName));
}

TEST_F(FTintmillEditorStyleSet, TheThumbnailIs64By64)
{
	PreInit();
	EXPECT_EQ(FindBrush(ThumbnailName)->ImageSize, FVector2D(64.0f, 64.0f));
}

TEST_F(FTintmillEditorStyleSet, TheIconIs20By20)
{
	PreInit();
	EXPECT_EQ(FindBrush(IconName)->ImageSize, FVector2D(20.0f, 20.0f));
}

TEST_F(FTintmillEditorStyleSet, TheThumbnailsFile)
{
	PreInit();
	EXPECT_EQ(FindBrush(ThumbnailName)->GetResourceName().ToString(), GetIconsDir() + TEXT("/TintmillIcon_64x.png"));
}

TEST_F(FTintmillEditorStyleSet, TheIconsFile)
{
	PreInit();
	EXPECT_EQ(FindBrush(IconName)->GetResourceName().ToString(), GetIconsDir() + TEXT("/TintmillIcon_20x.png"));
}

TEST_F(FTintmillEditorStyleSet, TheThumbnailsFileIsAPictureOfThatSize)
{
	PreInit();
	EXPECT_EQ(ReadPngSize(FindBrush(ThumbnailName)->GetResourceName().ToString()), (std::vector<int>{64, 64}));
}

TEST_F(FTintmillEditorStyleSet, TheIconsFileIsAPictureOfThatSize)
{
	PreInit();
	EXPECT_EQ(ReadPngSize(FindBrush(IconName)->GetResourceName().ToString()), (std::vector<int>{20, 20}));
}

TEST_F(FTintmillEditorStyleSet, BothBrushesAreTintedOpaqueWhite)
{
	PreInit();
	EXPECT_EQ(FindBrush(ThumbnailName)->TintColor, FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)));
	EXPECT_EQ(FindBrush(IconName)->TintColor, FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)));
}

TEST_F(FTintmillEditorStyleSet, NeitherBrushIsTiled)
{
	PreInit();
	EXPECT_EQ(FindBrush(ThumbnailName)->GetTiling(), ESlateBrushTileType::NoTile);
	EXPECT_EQ(FindBrush(IconName)->GetTiling(), ESlateBrushTileType::NoTile);
}

TEST_F(FTintmillEditorStyleSet, BothBrushesAreImagesInFullColor)
{
	PreInit();
	for (const FName Name : {ThumbnailName, IconName})
	{
		EXPECT_EQ(FindBrush(Name)->GetDrawType(), ESlateBrushDrawType::Image);
		EXPECT_EQ(FindBrush(Name)->GetImageType(), ESlateBrushImageType::FullColor);
	}
}

TEST_F(FTintmillEditorStyleSet, TheEditorFindsTheIconOfALook)
{
	PreInit();
	const FSlateIcon Icon = FSlateIconFinder::FindIconForClass(UTintmillObject::StaticClass());
	EXPECT_EQ(Icon.GetStyleSetName(), StyleName);
	EXPECT_EQ(Icon.GetStyleName(), IconName);
}

TEST_F(FTintmillEditorStyleSet, TheEditorFindsTheIconsBrushOfALook)
{
	PreInit();
	EXPECT_EQ(FSlateIconFinder::FindIconBrushForClass(UTintmillObject::StaticClass()), FindBrush(IconName));
}

TEST_F(FTintmillEditorStyleSet, TheEditorFindsTheThumbnailOfALook)
{
	PreInit();
	EXPECT_EQ(FClassIconFinder::FindThumbnailForClass(UTintmillObject::StaticClass()), FindBrush(ThumbnailName));
}

TEST_F(FTintmillEditorStyleSet, TakesTheIconsOfThePlugInThatIsFound)
{
	Project.Write("Plugins/Tintmill/Tintmill.uplugin", "{ \"FileVersion\": 3 }");
	IPluginManager::Get().RefreshPluginsList();
	StartWithoutModule();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Initialize(StyleSet);
	const FString ContentRoot = StyleSet->GetContentRootDir();
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_EQ(ContentRoot, Project.Path("Plugins/Tintmill/Editor/Icons"));
}

TEST_F(FTintmillEditorStyleSet, WithoutThePlugInTheContentRootStaysUnset)
{
	LosePlugin();
	StartWithoutModule();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Initialize(StyleSet);
	const FString ContentRoot = StyleSet->GetContentRootDir();
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_EQ(ContentRoot, FString());
}

TEST_F(FTintmillEditorStyleSet, WithoutThePlugInBothBrushesAreStillRegistered)
{
	LosePlugin();
	StartWithoutModule();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Initialize(StyleSet);
	const bool bFound = FindStyle() && FindBrush(ThumbnailName) && FindBrush(IconName);
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_TRUE(bFound);
}

TEST_F(FTintmillEditorStyleSet, WithoutThePlugInNothingIsReported)
{
	LosePlugin();
	StartWithoutModule();
	Log.Clear();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Initialize(StyleSet);
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_EQ(Log.GetLines().size() + static_cast<size_t>(StandIn::GetNotices().Num()), 0u);
}

TEST_F(FTintmillEditorStyleSet, MissingImageFilesAreNotReportedAtRegistration)
{
	Project.Write("Plugins/Tintmill/Tintmill.uplugin", "{ \"FileVersion\": 3 }");
	IPluginManager::Get().RefreshPluginsList();
	StartWithoutModule();
	Log.Clear();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Initialize(StyleSet);
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_TRUE(Log.GetLines().empty());
}

TEST_F(FTintmillEditorStyleSet, ShutDownUnregistersAndDestroysTheSet)
{
	StartWithoutModule();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Initialize(StyleSet);
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_TRUE(!StyleSet.IsValid() && !FindStyle());
}

TEST_F(FTintmillEditorStyleSet, ShutDownWithoutASetDoesNothing)
{
	PreInit();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_NE(FindStyle(), nullptr);
}

TEST_F(FTintmillEditorStyleSet, MadeAgainItTakesThePlaceOfThePreviousSet)
{
	StartWithoutModule();
	TUniquePtr<FSlateStyleSet> StyleSet;
	FTintmillEditorStyle::Initialize(StyleSet);
	FSlateStyleRegistry::UnRegisterSlateStyle(*StyleSet);
	FTintmillEditorStyle::Initialize(StyleSet);
	const bool bRegistered = FindStyle() == StyleSet.Get() && FindBrush(IconName);
	FTintmillEditorStyle::Shutdown(StyleSet);
	EXPECT_TRUE(bRegistered);
}

TEST_F(FTintmillEditorStyleSet, ComesBackWithTheModule)
{
	PreInit();
	FModuleManager::Get().UnloadModule(TEXT("TintmillEditor"));
	FModuleManager::Get().LoadModule(TEXT("TintmillEditor"));
	EXPECT_EQ(FindBrush(IconName)->ImageSize, FVector2D(20.0f, 20.0f));
}
}
