// Copyright The Tintmill authors. All rights reserved.

#include "AssetToolsFixture.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/Notices.h"
#include "Support/Printers.h"
#include "Support/TestFolder.h"

// Assets of a kind that is kept in files of its own have their file from the start.

namespace
{
/** A folder of assets; those of the tests' class are kept in .tale files. */
class FNewAssetFileTest : public FAssetToolsFixture
{
protected:
	FNewAssetFileTest()
	{
		std::filesystem::create_directories(Folder.NativePath("Looks"));
		StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path());
		StandIn::FAssetFileType Type;
		Type.Extension = TEXT("tale");
		Type.ClassName = FName(TEXT("AssetToolsTestAsset"));
		Type.Load = [this](UObject* Asset, const FString& FileName) { Loaded = ToStd(Asset->GetName()) + " from " + ToStd(FileName); };
		Type.WriteNew = [](const FString& FileName, FString& OutReason) {
			return StandIn::SaveFileAtomically(FileName, "once", 4, OutReason);
		};
		StandIn::RegisterAssetFileType(Type);
		StandIn::ClearNotices();
	}

	~FNewAssetFileTest() override
	{
		StandIn::UnregisterAssetFileType(TEXT("tale"));
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		StandIn::ClearNotices();
	}

	/** The standing notice's text; empty for none. */
	static std::string GetNotice() { return StandIn::GetNotices().Num() == 1 ? ToStd(StandIn::GetNotices()[0].Text) : std::string(); }

	FTestFolder Folder;
	std::string Loaded;
};
}

TEST_F(FNewAssetFileTest, IsWrittenWhenTheAssetIsMade)
{
	Create(TEXT("Teal"), MakeFactory());
	EXPECT_EQ(Folder.Read("Looks/Teal.tale"), "once");
}

TEST_F(FNewAssetFileTest, FillsTheAsset)
{
	Create(TEXT("Teal"), MakeFactory());
	EXPECT_EQ(Loaded, "Teal from " + ToStd(Folder.Path("Looks/Teal.tale")));
}

TEST_F(FNewAssetFileTest, IsWrittenForAnAssetOfADerivedClass)
{
	Tools().CreateAsset(TEXT("Teal"), TEXT("/Game/Looks"), UAssetToolsTestChild::StaticClass(), MakeFactory(), "Test");
	EXPECT_EQ(Folder.List("Looks"), std::vector<std::string>({"Teal.tale"}));
}

TEST_F(FNewAssetFileTest, GoesAgainWhenTheFactoryRefuses)
{
	UAssetToolsTestFactory* const Factory = MakeFactory();
	Factory->bRefuse = true;
	Create(TEXT("Teal"), Factory);
	EXPECT_TRUE(Folder.List("Looks").empty());
}

TEST_F(FNewAssetFileTest, IsNotNeededOutsideOfMountPoints)
{
	EXPECT_NE(Tools().CreateAsset(TEXT("Teal"), TEXT("/Temp/Looks"), UAssetToolsTestAsset::StaticClass(), MakeFactory(), "Test"), nullptr);
}

TEST_F(FNewAssetFileTest, KeepsTheAssetFromBeingMadeWhenItCannotBeWritten)
{
	EXPECT_EQ(
		Tools().CreateAsset(TEXT("Teal"), TEXT("/Game/Missing"), UAssetToolsTestAsset::StaticClass(), MakeFactory(), "Test"), nullptr);
}

TEST_F(FNewAssetFileTest, SaysWhyItCannotBeWritten)
{
	StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep, const TCHAR*) { return false; });
	Create(TEXT("Teal"), MakeFactory());
	StandIn::SetAtomicFileHook(nullptr);
	EXPECT_EQ(GetNotice(),
		"The asset /Game/Looks/Teal was not made: its file " + ToStd(Folder.Path("Looks/Teal.tale"))
			+ " cannot be written (injected failure). Check that you may write into this folder, then create it again.");
}

TEST_F(FNewAssetFileTest, IsNotWrittenOverAFileThatNobodyKnewOf)
{
	// A question to the registry has it look at the folder before the file comes.
	Create(TEXT("First"), MakeFactory());
	Folder.Write("Looks/Teal.tale", "upon");
	Create(TEXT("Teal"), MakeFactory());
	EXPECT_EQ(Folder.Read("Looks/Teal.tale"), "upon");
}

TEST_F(FNewAssetFileTest, NamesTheFileThatIsInTheWay)
{
	Create(TEXT("First"), MakeFactory());
	Folder.Write("Looks/Teal.tale", "upon");
	Create(TEXT("Teal"), MakeFactory());
	EXPECT_EQ(GetNotice(),
		"The asset /Game/Looks/Teal was not made: there is the file " + ToStd(Folder.Path("Looks/Teal.tale"))
			+ " already. Choose another name.");
}
