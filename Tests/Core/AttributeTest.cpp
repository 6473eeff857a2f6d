// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Attribute.h"

#include "Internationalization/Internationalization.h"
#include "Support/Printers.h"
#include "gtest/gtest.h"

namespace
{
class FSource : public TSharedFromThis<FSource>
{
public:
	int32 GetValue() const
	{
		++NumCalls;
		return Value;
	}
	TAttribute<int32> MakeAttributeOfThis() { return TAttribute<int32>(this, &FSource::GetValue); }

	int32 Value = 1;
	mutable int32 NumCalls = 0;
};

int32 GetSeven()
{
	return 7;
}
}

TEST(TAttribute, DefaultIsNotSet)
{
	const TAttribute<int32> Attribute;
	EXPECT_FALSE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(0, Attribute.Get());
	EXPECT_EQ(9, Attribute.Get(9));
}

TEST(TAttribute, ValueConvertsImplicitly)
{
	const TAttribute<FText> Attribute = INVTEXT("Words");
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ("Words", ToStd(Attribute.Get().ToString()));
	const TAttribute<float> FromInt = 3;
	EXPECT_EQ(3.0f, FromInt.Get());
}

TEST(TAttribute, BoundGetterIsAskedEachTime)
{
	const TSharedRef<FSource> Source = MakeShared<FSource>();
	const TAttribute<int32> Attribute = TAttribute<int32>::Create(TAttribute<int32>::FGetter::CreateSP(Source, &FSource::GetValue));
	EXPECT_EQ(1, Attribute.Get());
	Source->Value = 2;
	EXPECT_EQ(2, Attribute.Get());
	EXPECT_EQ(2, Source->NumCalls);
}

TEST(TAttribute, KeepsTheLastAnswerWhenItsObjectIsGone)
{
	TSharedPtr<FSource> Source = MakeShared<FSource>();
	const TAttribute<int32> Attribute = Source->MakeAttributeOfThis();
	Source->Value = 5;
	EXPECT_EQ(5, Attribute.Get());
	Source.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_EQ(5, Attribute.Get());
}

TEST(TAttribute, SettingAValueDropsTheGetter)
{
	TAttribute<int32> Attribute = TAttribute<int32>::Create(&GetSeven);
	EXPECT_EQ(7, Attribute.Get());
	Attribute.Set(3);
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(3, Attribute.Get());
}

TEST(TAttribute, BindingAfterwardsReplacesTheValue)
{
	FSource Source;
	TAttribute<int32> Attribute = 3;
	Attribute.BindRaw(&Source, &FSource::GetValue);
	EXPECT_EQ(1, Attribute.Get());
	Attribute.BindStatic(&GetSeven);
	EXPECT_EQ(7, Attribute.Get());
}

TEST(TAttribute, IdenticalValuesOrBindings)
{
	EXPECT_TRUE(TAttribute<int32>(3).IdenticalTo(TAttribute<int32>(3)));
	EXPECT_FALSE(TAttribute<int32>(3).IdenticalTo(TAttribute<int32>(4)));
	const TAttribute<int32> Bound = TAttribute<int32>::Create(&GetSeven);
	const TAttribute<int32> Copy(Bound);
	EXPECT_TRUE(Bound.IdenticalTo(Copy));
	EXPECT_FALSE(Bound.IdenticalTo(TAttribute<int32>::Create(&GetSeven)));
}
