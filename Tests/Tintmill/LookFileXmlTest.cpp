// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileXml.h"

#include "Tintmill/Private/LookFileCheck.h"

#include <gtest/gtest.h>

namespace LookFileXmlTest
{
static std::string Verdict(const std::string& Text)
{
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	return LookFile::CheckText(Text, "clf", File, Problem) ? "accepted" : LookFile::Sentence("x.clf", Problem);
}

static std::string Array(const std::string& Dimension, const std::string& Numbers)
{
	return "<ProcessList id=\"a\">\n<LUT3D>\n<Array dim=\"" + Dimension + "\">\n" + Numbers + "\n</Array>\n</LUT3D>\n</ProcessList>\n";
}

TEST(LookFileXml, AcceptsATable)
{
	EXPECT_EQ(Verdict(Array("2 2 2 3", "0 0 0 0.5 -1 1e-3")), "accepted");
}

TEST(LookFileXml, AcceptsALongLineOfShortWords)
{
	std::string Numbers;
	for (int Index = 0; Index < 10000; ++Index)
	{
		Numbers += "0.5 ";
	}
	EXPECT_EQ(Verdict(Array("2 2 2 3", Numbers)), "accepted");
}

TEST(LookFileXml, RefusesNanInATable)
{
	EXPECT_EQ(Verdict(Array("2 2 2 3", "0 nan 0")), "x.clf(4): \"nan\" is not a finite number");
}

TEST(LookFileXml, RefusesADecimalCommaInATable)
{
	EXPECT_EQ(Verdict(Array("2 2 2 3", "0,5 0 0")),
		"x.clf(4): \"0,5\" is not a number; decimals are written with a point, and numbers are parted by blanks");
}

TEST(LookFileXml, AcceptsCommasOutsideTables)
{
	EXPECT_EQ(Verdict("<Description>warm, 0,5 stops</Description>"), "accepted");
}

TEST(LookFileXml, RefusesAHugeTable)
{
	EXPECT_EQ(Verdict(Array("2000 2000 2000 3", "0")), "x.clf(3): the table's size \"2000\" is not between 1 and 129");
}

TEST(LookFileXml, RefusesDocumentTypes)
{
	EXPECT_EQ(Verdict("<?xml version=\"1.0\"?>\n<!DOCTYPE a [<!ENTITY b \"c\">]>\n"),
		"x.clf(2): definitions of document types and entities are not read");
}

TEST(LookFileXml, AcceptsComments)
{
	EXPECT_EQ(Verdict("<!-- 0,5 nan\n<Array dim=\"9999\"> -->\n<ProcessList/>"), "accepted");
}

TEST(LookFileXml, PartsWordsThatOnlyTagsHoldTogether)
{
	EXPECT_EQ(Verdict("<Description>" + std::string(60, 'x') + "</Description>"), "accepted");
}

TEST(LookFileXml, RefusesAnOverLongWord)
{
	EXPECT_EQ(Verdict("<a>\n<b c=\"" + std::string(200, 'x') + "\"/>"),
		"x.clf(2): the word \"c=\"xxxxxxxxxxxxxxxxxxxxx...\" is longer than 63 characters");
}
}
