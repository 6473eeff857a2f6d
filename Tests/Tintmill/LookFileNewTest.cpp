// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileNew.h"

#include "StandIn/AssetFiles.h"
#include "StandIn/AtomicFile.h"
#include "Tintmill/LookTestBase.h"

#include <vector>

namespace LookFileNewTest
{
class LookFileNew : public TintmillTest::FLookTestBase
{
protected:
	virtual ~LookFileNew() override { StandIn::SetAtomicFileHook(nullptr); }

	/** Writes a new look file. */
	bool Write() { return LookFile::WriteNewLook(GetFile(), Reason); }

	/** The new look's file. */
	FString GetFile() const { return FString(UTF8_TO_TCHAR(Folder.At("New.cube").string().c_str())); }

	FString Reason;
};

TEST_F(LookFileNew, IsALookThatCanBeUsed)
{
	Write();
	EXPECT_TRUE(StandIn::LoadLookFile(NewLook(), GetFile()));
}

TEST_F(LookFileNew, LeavesEveryValueOfEveryChannelAsItIs)
{
	Write();
	UTintmillObject* const Asset = NewLook();
	StandIn::LoadLookFile(Asset, GetFile());
	std::vector<uint8> Pixels;
	for (int32 Value = 0; Value < 256; ++Value)
	{
		// Each value in each channel beside others that are far from it.
		const uint8 Low = static_cast<uint8>(Value);
		const uint8 High = static_cast<uint8>(255 - Value);
		const uint8 Middle = static_cast<uint8>(Value * 7);
		Pixels.insert(Pixels.end(), {Low, High, Middle, 255, Middle, Low, High, 0, High, Middle, Low, Middle});
	}
	const std::vector<uint8> Before = Pixels;
	StandIn::ApplyLookToPixels(Asset, Pixels.data(), static_cast<int32>(Pixels.size() / 4));
	EXPECT_EQ(Pixels, Before);
}

TEST_F(LookFileNew, IsWrittenWholeOrNotAtAll)
{
	StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep Step, const TCHAR*) { return Step != StandIn::EAtomicFileStep::Write; });
	Write();
	EXPECT_TRUE(std::filesystem::is_empty(Folder.At("")));
}

TEST_F(LookFileNew, SaysWhyItCouldNotBeWritten)
{
	StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep, const TCHAR*) { return false; });
	Write();
	EXPECT_EQ(Reason, FString(TEXT("injected failure")));
}

TEST_F(LookFileNew, StartsEveryNewLookAsset)
{
	std::string Extensions;
	for (const StandIn::FAssetFileType& Type : StandIn::GetAssetFileTypes())
	{
		Extensions += Type.WriteNew ? std::string(TCHAR_TO_UTF8(*Type.Extension)) + ";" : std::string();
	}
	EXPECT_EQ(Extensions, "cube;");
}
}
