// Copyright The Tintmill authors. All rights reserved.
#include "MetaData.h"

#include "TextTools.h"

namespace HeaderTool
{

bool FMetaDataKeyLess::operator()(const std::string& A, const std::string& B) const
{
	return ToLower(A) < ToLower(B);
}

void FMetaData::AddComment(const std::string& RawComment)
{
	if (RawComment.empty())
	{
		return;
	}
	Set("Comment", RawComment);
	const std::string ToolTip = CommentToToolTip(RawComment);
	if (!ToolTip.empty())
	{
		SetDefault("ToolTip", ToolTip);
	}
}

void FMetaData::AddPrefixed(const std::string& Prefix, const FMetaData& Other)
{
	for (const auto& [Key, Value] : Other.Pairs)
	{
		Set(Prefix + "." + Key, Value);
	}
}

const std::string* FMetaData::Find(const std::string& Key) const
{
	const auto Found = Pairs.find(Key);
	return Found == Pairs.end() ? nullptr : &Found->second;
}

}
