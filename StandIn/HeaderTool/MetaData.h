// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <map>
#include <string>

namespace HeaderTool
{

/** Orders metadata keys by the alphabet, the case of letters aside. */
struct FMetaDataKeyLess
{
	bool operator()(const std::string& A, const std::string& B) const;
};

/** The keys and values of one reflected thing, sorted by key. */
class FMetaData
{
public:
	/** Sets a key; an earlier value is replaced. */
	void Set(const std::string& Key, const std::string& Value) { Pairs[Key] = Value; }

	/** Sets a key that has no value yet. */
	void SetDefault(const std::string& Key, const std::string& Value) { Pairs.emplace(Key, Value); }

	/** Adds the keys Comment and ToolTip for a raw comment, each only where there is something to say; a given ToolTip wins. */
	void AddComment(const std::string& RawComment);

	/** Adds all pairs of another set under "<Prefix>.<Key>". */
	void AddPrefixed(const std::string& Prefix, const FMetaData& Other);

	/** The value of a key or null. */
	const std::string* Find(const std::string& Key) const;

	/** All pairs in order. */
	const std::map<std::string, std::string, FMetaDataKeyLess>& GetPairs() const { return Pairs; }

private:
	std::map<std::string, std::string, FMetaDataKeyLess> Pairs;
};

/** Returns the comment as a person reads it: without markers, stars, common indentation and lines that only rule off. */
std::string CommentToToolTip(const std::string& RawComment);

}
