// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetFiles.h"
#include "ConfigFixture.h"
#include "Misc/PackageName.h"
#include "Support/LogCapture.h"
#include "UObject/Package.h"

#include <filesystem>

namespace
{
typedef FConfigFixture AssetFiles;

std::string Scan(const FString& Folder, StandIn::FAssetScanReport& Report)
{
	TArray<StandIn::FAssetFile> Files;
	StandIn::ScanAssetFiles(Folder, true, Files, Report);
	std::string Names;
	for (const StandIn::FAssetFile& File : Files)
	{
		Names += ToStd(File.PackageName) + " ";
	}
	return Names;
}
}

TEST_F(AssetFiles, LoadAnAssetFromItsFile)
{
	Folder.Write("Content/Looks/Teal.coretest", "");
	const UCoreTestAsset* Asset = LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/Looks/Teal.Teal"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_TRUE(Asset->LoadedFrom == Folder.Path("Content/Looks/Teal.coretest") && Asset->bPostLoaded
		&& Asset->HasAllFlags(RF_Public | RF_Standalone | RF_WasLoaded) && Asset->GetPathName() == TEXT("/Game/Looks/Teal.Teal"));
}

TEST_F(AssetFiles, LoadAnAssetOnce)
{
	Folder.Write("Content/Teal.coretest", "");
	EXPECT_EQ(LoadObject<UObject>(nullptr, TEXT("/Game/Teal.Teal")), LoadObject<UObject>(nullptr, TEXT("/game/TEAL.teal")));
}

TEST_F(AssetFiles, LeaveALoadedAssetAloneWhenAnotherNameInItsPackageIsAskedFor)
{
	Folder.Write("Content/Teal.coretest", "");
	UCoreTestAsset* Asset = LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/Teal.Teal"));
	ASSERT_NE(Asset, nullptr);
	Asset->LoadedFrom = TEXT("changed");
	EXPECT_TRUE(LoadObject<UObject>(nullptr, TEXT("/Game/Teal.Other")) == nullptr && Asset->LoadedFrom == TEXT("changed"));
}

TEST_F(AssetFiles, LoadByPackageNameAlone)
{
	Folder.Write("Content/Teal.coretest", "");
	EXPECT_NE(LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/Teal")), nullptr);
}

TEST_F(AssetFiles, LoadFilesInAnySpellingOfCase)
{
	Folder.Write("Content/LOOKS/Teal.CoreTest", "");
	const UObject* Asset = LoadObject<UObject>(nullptr, TEXT("/Game/looks/teal.teal"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(ToStd(Asset->GetPathName()), "/Game/LOOKS/Teal.Teal");
}

TEST_F(AssetFiles, AnswerAMissingFileWithNullAndAWarning)
{
	FLogCapture Log;
	EXPECT_EQ(LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/Gone.Gone")), nullptr);
	EXPECT_EQ(Log.TextsOf("LogUObjectGlobals"),
		(std::vector<std::string>{
			"Failed to load '/Game/Gone': Can't find file.", "Failed to find object 'CoreTestAsset /Game/Gone.Gone'"}));
}

TEST_F(AssetFiles, AnswerAMissingMountPointWithNull)
{
	EXPECT_EQ(LoadObject<UCoreTestAsset>(nullptr, TEXT("/Elsewhere/Gone.Gone")), nullptr);
}

TEST_F(AssetFiles, AnswerAMountPointWithoutFolderWithNull)
{
	StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("NoSuchFolder"));
	EXPECT_EQ(LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/A.A")), nullptr);
}

TEST_F(AssetFiles, AnswerAnUnknownClassWithNull)
{
	StandIn::FAssetFileType Type;
	Type.Extension = TEXT(".mystery");
	Type.ClassName = TEXT("NoSuchClass");
	StandIn::RegisterAssetFileType(Type);
	Folder.Write("Content/A.mystery", "");
	const UObject* Asset = LoadObject<UObject>(nullptr, TEXT("/Game/A.A"));
	StandIn::UnregisterAssetFileType(TEXT("mystery"));
	EXPECT_EQ(Asset, nullptr);
}

TEST_F(AssetFiles, AnswerAWrongClassWithNull)
{
	Folder.Write("Content/Teal.coretest", "");
	EXPECT_EQ(LoadObject<UCoreTestObject>(nullptr, TEXT("/Game/Teal.Teal")), nullptr);
}

TEST_F(AssetFiles, LeaveTheFolderByNoDots)
{
	Folder.Write("Outside.coretest", "");
	EXPECT_EQ(LoadObject<UObject>(nullptr, TEXT("/Game/../Outside.Outside")), nullptr);
}

TEST_F(AssetFiles, ListAFolderTreeInOrder)
{
	Folder.Write("Content/B.coretest", "");
	Folder.Write("Content/A.coretest", "");
	Folder.Write("Content/Sub/C.CORETEST", "");
	Folder.Write("Content/notes.txt", "");
	StandIn::FAssetScanReport Report;
	EXPECT_EQ(Scan(Folder.Path("Content"), Report), "/Game/A /Game/B /Game/Sub/C ");
}

TEST_F(AssetFiles, ReportFilesThatCannotBeAssets)
{
	Folder.Write("Content/Good.coretest", "");
	Folder.Write("Content/Not good.coretest", "");
	Folder.Write("Content/Not_good.coretest", "");
	StandIn::FAssetScanReport Report;
	EXPECT_EQ(Scan(Folder.Path("Content"), Report), "/Game/Good /Game/Not_good ");
	EXPECT_EQ(Report.SkippedFiles, TArray<FString>({Folder.Path("Content/Not good.coretest")}));
}

TEST_F(AssetFiles, GiveNamesThatAssetsMayHave)
{
	EXPECT_EQ(ToStd(StandIn::MakeAssetName(TEXT("Teal_2"))), "Teal_2");
	EXPECT_EQ(ToStd(StandIn::MakeAssetName(TEXT("Film stock 2383 (v2.1)"))), "Film_stock_2383_v2_1");
	EXPECT_EQ(ToStd(StandIn::MakeAssetName(TEXT("  a  &  b  "))), "a_b");
	EXPECT_EQ(ToStd(StandIn::MakeAssetName(TEXT("Gr\u00fcn"))), "Gr\xc3\xbcn");
	EXPECT_EQ(ToStd(StandIn::MakeAssetName(TEXT("..."))), "_");
}

TEST_F(AssetFiles, LoadAFileByTheNameThatItsOwnGives)
{
	Folder.Write("Content/My looks/Film stock.coretest", "");
	const UCoreTestAsset* Asset = LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/My_looks/Film_stock.Film_stock"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_TRUE(Asset->LoadedFrom == Folder.Path("Content/My looks/Film stock.coretest"));
}

TEST_F(AssetFiles, PreferAFileThatHasTheNameAsItIs)
{
	Folder.Write("Content/Film stock.coretest", "");
	Folder.Write("Content/Film_stock.coretest", "");
	const UCoreTestAsset* Asset = LoadObject<UCoreTestAsset>(nullptr, TEXT("/Game/Film_stock.Film_stock"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_TRUE(Asset->LoadedFrom == Folder.Path("Content/Film_stock.coretest"));
}

TEST_F(AssetFiles, LeaveHiddenFilesAndFoldersOut)
{
	Folder.Write("Content/._Teal.coretest", "");
	Folder.Write("Content/.git/A.coretest", "");
	Folder.Write("Content/Teal.coretest", "");
	StandIn::FAssetScanReport Report;
	EXPECT_EQ(Scan(Folder.Path("Content"), Report), "/Game/Teal ");
	EXPECT_EQ(Report.SkippedFiles.Num(), 0);
}

TEST_F(AssetFiles, LeaveOutTheFoldersOfAMountPointThatHoldNone)
{
	Folder.Write("Content/Saved/A.coretest", "");
	Folder.Write("Content/SavedLooks/B.coretest", "");
	StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("Content"), {Folder.Path("Content/Saved")});
	StandIn::FAssetScanReport Report;
	EXPECT_EQ(Scan(Folder.Path("Content"), Report), "/Game/SavedLooks/B ");
}

TEST_F(AssetFiles, FindAFolderByItsPath)
{
	Folder.Write("Content/My looks/Deep/A.coretest", "");
	FString Found;
	ASSERT_TRUE(StandIn::FindAssetFolder(TEXT("/Game/my_looks/Deep"), Found));
	EXPECT_TRUE(Found == Folder.Path("Content/My looks/Deep/"));
	EXPECT_FALSE(StandIn::FindAssetFolder(TEXT("/Game/None"), Found));
}

TEST_F(AssetFiles, ReportAMissingFolder)
{
	StandIn::FAssetScanReport Report;
	Scan(Folder.Path("Content/NoSuchFolder"), Report);
	EXPECT_EQ(Report.UnreadableFolders.Num(), 1);
}

TEST_F(AssetFiles, SurviveLoopsOfSymbolicLinks)
{
	Folder.Write("Content/Sub/A.coretest", "");
	std::error_code Error;
	std::filesystem::create_directory_symlink(Folder.NativePath("Content"), Folder.NativePath("Content/Sub/Loop"), Error);
	if (Error)
	{
		GTEST_SKIP() << "symbolic links cannot be made here; neither the C++ library for Windows nor Wine makes them";
	}
	StandIn::FAssetScanReport Report;
	EXPECT_EQ(Scan(Folder.Path("Content"), Report), "/Game/Sub/A ");
}

TEST_F(AssetFiles, StopAScanThatIsAskedTo)
{
	for (int32 Index = 0; Index < 2500; ++Index)
	{
		Folder.Write("Content/A" + std::to_string(Index) + ".coretest", "");
	}
	TArray<StandIn::FAssetFile> Files;
	StandIn::FAssetScanReport Report;
	StandIn::ScanAssetFiles(Folder.Path("Content"), true, Files, Report, [](int32 NumFiles) { return NumFiles < 1000; });
	EXPECT_EQ(Files.Num(), 1000);
}

TEST(PackageName, TakesPathsApart)
{
	EXPECT_EQ(ToStd(FPackageName::ObjectPathToPackageName(TEXT("/Game/Dir/Pkg.Obj:Sub"))) + " "
			+ ToStd(FPackageName::GetLongPackagePath(TEXT("/Game/Dir/Pkg"))) + " "
			+ ToStd(FPackageName::GetShortName(TEXT("/Game/Dir/Pkg"))) + " " + ToStd(FPackageName::GetPackageMountPoint(TEXT("/Game/Dir"))),
		"/Game/Dir/Pkg /Game/Dir Pkg Game");
}

TEST(PackageName, KnowsValidNames)
{
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Game/A")));
}

TEST(PackageName, KnowsInvalidNames)
{
	for (const TCHAR* Name :
		{TEXT(""), TEXT("A"), TEXT("/Game"), TEXT("/Game/"), TEXT("/Game//A"), TEXT("/Game/A B"), TEXT("/Game/A.B"), TEXT("Game/A")})
	{
		EXPECT_FALSE(FPackageName::IsValidLongPackageName(Name)) << ToStd(Name);
	}
}

namespace
{
/** A kind of file that yields, as long as it lives. */
class FYieldingType
{
public:
	FYieldingType()
	{
		StandIn::FAssetFileType Type;
		Type.Extension = TEXT("aside");
		Type.ClassName = FName(TEXT("CoreTestAsset"));
		Type.bYields = true;
		StandIn::RegisterAssetFileType(Type);
	}
	~FYieldingType() { StandIn::UnregisterAssetFileType(TEXT("aside")); }
};
}

TEST_F(AssetFiles, PassOverAFileThatYieldsWithoutAWord)
{
	const FYieldingType Yielding;
	Folder.Write("Content/Teal.aside", "");
	Folder.Write("Content/Teal.coretest", "");
	StandIn::FAssetScanReport Report;
	EXPECT_EQ(Scan(Folder.Path("Content"), Report), "/Game/Teal ");
	EXPECT_EQ(Report.SkippedFiles.Num(), 0);
}

TEST_F(AssetFiles, ListAFileThatYieldsWhereNoOtherHasItsName)
{
	const FYieldingType Yielding;
	Folder.Write("Content/Amber.aside", "");
	StandIn::FAssetScanReport Report;
	EXPECT_EQ(Scan(Folder.Path("Content"), Report), "/Game/Amber ");
}

TEST_F(AssetFiles, FindTheFileThatDoesNotYield)
{
	const FYieldingType Yielding;
	Folder.Write("Content/Teal.aside", "");
	Folder.Write("Content/Teal.coretest", "");
	StandIn::FAssetFile File;
	ASSERT_TRUE(StandIn::FindAssetFile(TEXT("/Game/Teal"), File));
	EXPECT_EQ(ToStd(File.FileName), ToStd(Folder.Path("Content/Teal.coretest")));
}

TEST_F(AssetFiles, FindAFileThatYieldsWhereNoOtherHasItsName)
{
	const FYieldingType Yielding;
	Folder.Write("Content/Teal.aside", "");
	StandIn::FAssetFile File;
	EXPECT_TRUE(StandIn::FindAssetFile(TEXT("/Game/Teal"), File));
}
