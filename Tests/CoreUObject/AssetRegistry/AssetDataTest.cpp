// Copyright The Tintmill authors. All rights reserved.

#include "AssetRegistry/AssetData.h"
#include "ConfigFixture.h"
#include "UObject/Package.h"

namespace
{
typedef FConfigFixture AssetData;
}

TEST_F(AssetData, IsInvalidByDefaultAndForNull)
{
	EXPECT_TRUE(!FAssetData().IsValid() && !FAssetData((const UObject*)nullptr).IsValid());
}

TEST_F(AssetData, DescribesAnObject)
{
	UObject* Asset = NewObject<UCoreTestAsset>(CreatePackage(TEXT("/Game/Dir/Pkg")), TEXT("Obj"), RF_Public);
	const FAssetData Data(Asset);
	EXPECT_EQ(ToStd(Data.ObjectPath) + " " + ToStd(Data.PackageName) + " " + ToStd(Data.PackagePath) + " " + ToStd(Data.AssetName) + " "
			+ ToStd(Data.AssetClass),
		"/Game/Dir/Pkg.Obj /Game/Dir/Pkg /Game/Dir Obj CoreTestAsset");
}

TEST_F(AssetData, DescribesAPathGivenInPieces)
{
	const FAssetData Data(TEXT("/Game/Dir/Pkg"), TEXT("/Game/Dir"), TEXT("Obj"), TEXT("CoreTestAsset"));
	EXPECT_EQ(ToStd(Data.GetFullName()) + " " + ToStd(Data.GetExportTextName()),
		"CoreTestAsset /Game/Dir/Pkg.Obj CoreTestAsset'/Game/Dir/Pkg.Obj'");
}

TEST_F(AssetData, DescribesAPathGivenWhole)
{
	const FAssetData Data(FString(TEXT("/Game/Dir/Pkg")), FString(TEXT("/Game/Dir/Pkg.Obj")), FName("CoreTestAsset"));
	EXPECT_EQ(ToStd(Data.PackagePath) + " " + ToStd(Data.AssetName), "/Game/Dir Obj");
}

TEST_F(AssetData, IsEqualByObjectPathOnly)
{
	const FAssetData A(TEXT("/Game/A"), TEXT("/Game"), TEXT("A"), TEXT("CoreTestAsset"));
	const FAssetData B(TEXT("/game/a"), TEXT("/Other"), TEXT("a"), TEXT("Other"));
	const FAssetData C(TEXT("/Game/C"), TEXT("/Game"), TEXT("C"), TEXT("CoreTestAsset"));
	EXPECT_TRUE(A == B && A != C);
}

TEST_F(AssetData, GivesNoAssetWhenInvalidOrMissing)
{
	EXPECT_TRUE(FAssetData().GetAsset() == nullptr
		&& FAssetData(TEXT("/Game/Gone"), TEXT("/Game"), TEXT("Gone"), TEXT("CoreTestAsset")).GetAsset() == nullptr);
}

TEST_F(AssetData, LoadsItsAssetWhenAskedForIt)
{
	Folder.Write("Content/Teal.coretest", "");
	const FAssetData Data(TEXT("/Game/Teal"), TEXT("/Game"), TEXT("Teal"), TEXT("CoreTestAsset"));
	const bool bBefore = Data.IsAssetLoaded();
	EXPECT_TRUE(!bBefore && Data.FastGetAsset() == nullptr && Data.GetAsset() != nullptr && Data.IsAssetLoaded());
}

TEST_F(AssetData, FindsItsClassByShortName)
{
	EXPECT_EQ(FAssetData(TEXT("/Game/A"), TEXT("/Game"), TEXT("A"), TEXT("CoreTestAsset")).GetClass(), UCoreTestAsset::StaticClass());
}

TEST_F(AssetData, HasNoClassForAnUnknownName)
{
	EXPECT_EQ(FAssetData(TEXT("/Game/A"), TEXT("/Game"), TEXT("A"), TEXT("NoSuchClass")).GetClass(), nullptr);
}

TEST_F(AssetData, LoadsItsPackage)
{
	Folder.Write("Content/Teal.coretest", "");
	const UPackage* Package = FAssetData(TEXT("/Game/Teal"), TEXT("/Game"), TEXT("Teal"), TEXT("CoreTestAsset")).GetPackage();
	ASSERT_NE(Package, nullptr);
	EXPECT_EQ(ToStd(Package->GetName()), "/Game/Teal");
}

TEST_F(AssetData, KnowsWhetherItIsNamedLikeItsPackage)
{
	EXPECT_TRUE(FAssetData(TEXT("/Game/A"), TEXT("/Game"), TEXT("A"), TEXT("X")).IsUAsset()
		&& !FAssetData(TEXT("/Game/A"), TEXT("/Game"), TEXT("B"), TEXT("X")).IsUAsset());
}

TEST_F(AssetData, GivesTagValues)
{
	FAssetDataTagMap Tags;
	Tags.Add(TEXT("Tag"), TEXT("Value"));
	const FAssetData Data(TEXT("/Game/A"), TEXT("/Game"), TEXT("A"), TEXT("X"), Tags);
	FString Value;
	EXPECT_TRUE(Data.GetTagValue(TEXT("tag"), Value) && Value == TEXT("Value") && !Data.GetTagValue(TEXT("Other"), Value));
}
