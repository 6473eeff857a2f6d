// Copyright The Tintmill authors. All rights reserved.
#include "MetaData.h"

#include <gtest/gtest.h>

namespace
{

std::string GetKeys(const HeaderTool::FMetaData& MetaData)
{
	std::string Result;
	for (const auto& [Key, Value] : MetaData.GetPairs())
	{
		Result += Key + " ";
	}
	return Result;
}

}

TEST(FMetaData, SortsKeysWithoutRegardToCase)
{
	HeaderTool::FMetaData MetaData;
	MetaData.Set("ToolTip", "");
	MetaData.Set("category", "");
	MetaData.Set("Comment", "");
	EXPECT_EQ(GetKeys(MetaData), "category Comment ToolTip ");
}

TEST(FMetaData, HasNoKeysWithoutAComment)
{
	HeaderTool::FMetaData MetaData;
	MetaData.AddComment("");
	EXPECT_EQ(GetKeys(MetaData), "");
}

TEST(FMetaData, KeepsTheCommentRaw)
{
	HeaderTool::FMetaData MetaData;
	MetaData.AddComment("/*  A  */");
	EXPECT_EQ(*MetaData.Find("Comment"), "/*  A  */");
}

TEST(FMetaData, HasNoToolTipForACommentWithoutWords)
{
	HeaderTool::FMetaData MetaData;
	MetaData.AddComment("/** - */");
	EXPECT_EQ(GetKeys(MetaData), "Comment ");
}

TEST(FMetaData, PrefersAGivenToolTip)
{
	HeaderTool::FMetaData MetaData;
	MetaData.Set("ToolTip", "Given");
	MetaData.AddComment("// Other\n");
	EXPECT_EQ(*MetaData.Find("ToolTip"), "Given");
}

TEST(FMetaData, PutsAPrefixBeforeTheKeysOfAnother)
{
	HeaderTool::FMetaData Inner;
	Inner.Set("Name", "E::A");
	HeaderTool::FMetaData Outer;
	Outer.AddPrefixed("A", Inner);
	EXPECT_EQ(GetKeys(Outer), "A.Name ");
}
