// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileNumber.h"

#include <gtest/gtest.h>

namespace LookFileNumberTest
{
static float Parsed(const char* Word)
{
	float Value = -99.0f;
	std::string Reason;
	EXPECT_TRUE(LookFile::ParseNumber(Word, Value, Reason)) << Reason;
	return Value;
}

static std::string Refusal(const char* Word)
{
	float Value = 0.0f;
	std::string Reason = "accepted";
	LookFile::ParseNumber(Word, Value, Reason);
	return Reason;
}

TEST(LookFileNumber, ReadsPlainDecimals)
{
	EXPECT_EQ(Parsed("0.25"), 0.25f);
}

TEST(LookFileNumber, ReadsALeadingPlus)
{
	EXPECT_EQ(Parsed("+0.5"), 0.5f);
}

TEST(LookFileNumber, ReadsANumberWithoutALeadingDigit)
{
	EXPECT_EQ(Parsed("-.5"), -0.5f);
}

TEST(LookFileNumber, ReadsANumberThatEndsInAPoint)
{
	EXPECT_EQ(Parsed("1."), 1.0f);
}

TEST(LookFileNumber, ReadsExponents)
{
	EXPECT_EQ(Parsed("25E-2"), 0.25f);
}

TEST(LookFileNumber, TakesANumberTooSmallForAFloatAsNought)
{
	EXPECT_EQ(Parsed("1e-400"), 0.0f);
}

TEST(LookFileNumber, RefusesADecimalComma)
{
	EXPECT_EQ(Refusal("0,5"), "\"0,5\" is not a number; decimals are written with a point, and numbers are parted by blanks");
}

TEST(LookFileNumber, RefusesTrailingRubbish)
{
	EXPECT_EQ(Refusal("0.5abc"), "\"0.5abc\" is not a number");
}

TEST(LookFileNumber, RefusesNan)
{
	EXPECT_EQ(Refusal("nan"), "\"nan\" is not a finite number");
}

TEST(LookFileNumber, RefusesInfinity)
{
	EXPECT_EQ(Refusal("-inf"), "\"-inf\" is not a finite number");
}

TEST(LookFileNumber, RefusesHexadecimalNumbers)
{
	EXPECT_EQ(Refusal("0x10"), "\"0x10\" is not a number");
}

TEST(LookFileNumber, RefusesNumbersBeyondAFloat)
{
	EXPECT_EQ(Refusal("1e999"), "\"1e999\" is too large a number");
}

TEST(LookFileNumber, RefusesTwoSigns)
{
	EXPECT_EQ(Refusal("+-1"), "\"+-1\" is not a number");
}

TEST(LookFileNumber, RefusesALoneSign)
{
	EXPECT_EQ(Refusal("+"), "\"+\" is not a number");
}

TEST(LookFileNumber, NamesTheBoundsOfAnInteger)
{
	std::int64_t Value = 0;
	std::string Reason;
	LookFile::ParseInteger("130", 2, 129, Value, Reason);
	EXPECT_EQ(Reason, "\"130\" is not between 2 and 129");
}

TEST(LookFileNumber, RefusesAnIntegerBeyondSixtyFourBits)
{
	std::int64_t Value = 0;
	std::string Reason;
	EXPECT_FALSE(LookFile::ParseInteger("99999999999999999999", 2, 129, Value, Reason));
}

TEST(LookFileNumber, RefusesAFractionAsAnInteger)
{
	std::int64_t Value = 0;
	std::string Reason;
	LookFile::ParseInteger("2.5", 2, 129, Value, Reason);
	EXPECT_EQ(Reason, "\"2.5\" is not a whole number");
}

TEST(LookFileNumber, WritesTheShortestTextOfAFloat)
{
	std::string Text;
	LookFile::AppendNumber(Text, 0.1f);
	EXPECT_EQ(Text, "0.1");
}
}
