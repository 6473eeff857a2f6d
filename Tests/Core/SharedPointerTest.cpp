// Copyright The Tintmill authors. All rights reserved.

#include "Templates/SharedPointer.h"

#include "Containers/Map.h"
#include "gtest/gtest.h"
#include <thread>
#include <vector>

namespace
{
class FNode : public TSharedFromThis<FNode>
{
public:
	explicit FNode(int32* InNumAlive = nullptr)
		: NumAlive(InNumAlive)
	{
		if (NumAlive != nullptr)
		{
			++*NumAlive;
		}
	}
	virtual ~FNode()
	{
		if (NumAlive != nullptr)
		{
			--*NumAlive;
		}
	}

	int32* NumAlive;
};

class FLeaf : public FNode
{
public:
	using FNode::FNode;
	TSharedRef<FLeaf> Me() { return SharedThis(this); }
	TSharedRef<const FLeaf> Me() const { return SharedThis(this); }
};
}

TEST(TSharedPtr, LastPointerDeletesTheObject)
{
	int32 NumAlive = 0;
	TSharedPtr<FNode> First = MakeShared<FNode>(&NumAlive);
	TSharedPtr<FNode> Second(First);
	EXPECT_EQ(2, First.GetSharedReferenceCount());
	First.Reset();
	EXPECT_EQ(1, NumAlive);
	EXPECT_TRUE(Second.IsUnique());
	Second = nullptr;
	EXPECT_EQ(0, NumAlive);
}

TEST(TSharedPtr, ShareableObjectsConvertToPointerAndReference)
{
	int32 NumAlive = 0;
	{
		const TSharedPtr<FNode> Pointer = MakeShareable(new FLeaf(&NumAlive));
		const TSharedRef<FNode> Reference = MakeShareable(new FLeaf(&NumAlive));
		TSharedPtr<FNode> Assigned;
		Assigned = MakeShareable(new FLeaf(&NumAlive));
		EXPECT_EQ(3, NumAlive);
	}
	EXPECT_EQ(0, NumAlive);
}

TEST(TSharedPtr, CustomDeleterIsCalled)
{
	bool bDeleted = false;
	FNode Node;
	{
		const TSharedPtr<FNode> Pointer = MakeShareable(&Node, [&bDeleted](FNode*) { bDeleted = true; });
	}
	EXPECT_TRUE(bDeleted);
}

TEST(TSharedPtr, MovingLeavesNull)
{
	TSharedPtr<FNode> Source = MakeShared<FNode>();
	const TSharedPtr<FNode> Target(MoveTemp(Source));
	EXPECT_FALSE(Source.IsValid());
	EXPECT_EQ(1, Target.GetSharedReferenceCount());
}

TEST(TSharedPtr, PointersCompareByAddressAcrossKinds)
{
	const TSharedRef<FLeaf> Leaf = MakeShared<FLeaf>();
	const TSharedPtr<FNode> Node = Leaf;
	const TWeakPtr<FNode> Weak = Leaf;
	EXPECT_TRUE(Leaf == Node);
	EXPECT_TRUE(Weak == Node);
	EXPECT_FALSE(Node != Leaf);
	EXPECT_EQ(GetTypeHash(Leaf), GetTypeHash(Node));
}

TEST(TSharedPtr, CastsShareTheOwner)
{
	const TSharedPtr<FNode> Node = MakeShared<FLeaf>();
	const TSharedPtr<FLeaf> Leaf = StaticCastSharedPtr<FLeaf>(Node);
	EXPECT_EQ(2, Node.GetSharedReferenceCount());
	const TSharedPtr<const FLeaf> ConstLeaf = Leaf;
	EXPECT_TRUE(ConstCastSharedPtr<FLeaf>(ConstLeaf) == Leaf);
}

TEST(TSharedPtr, ThreadSafePointersCountInSeveralThreads)
{
	const TSharedPtr<int32, ESPMode::ThreadSafe> Pointer = MakeShared<int32, ESPMode::ThreadSafe>(1);
	std::vector<std::thread> Threads;
	for (int32 Thread = 0; Thread < 4; ++Thread)
	{
		Threads.emplace_back([Pointer] {
			for (int32 Round = 0; Round < 10000; ++Round)
			{
				const TSharedPtr<int32, ESPMode::ThreadSafe> Copy(Pointer);
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	Threads.clear();
	EXPECT_EQ(1, Pointer.GetSharedReferenceCount());
}

TEST(TWeakPtr, PinsWhileTheObjectLives)
{
	TSharedPtr<FNode> Pointer = MakeShared<FNode>();
	const TWeakPtr<FNode> Weak(Pointer);
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_TRUE(Weak.Pin() == Pointer);
	const void* const Address = Pointer.Get();
	EXPECT_TRUE(Weak.HasSameObject(Address));
	Pointer.Reset();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
	EXPECT_FALSE(Weak.HasSameObject(Address));
}

TEST(TSharedFromThis, FindsItsPointerFromInside)
{
	const TSharedRef<FLeaf> Leaf = MakeShared<FLeaf>();
	EXPECT_TRUE(Leaf->Me() == Leaf);
	EXPECT_TRUE(Leaf->AsShared() == Leaf);
	const TSharedRef<const FLeaf> ConstLeaf = Leaf;
	EXPECT_TRUE(ConstLeaf->Me() == Leaf);
	EXPECT_TRUE(Leaf->DoesSharedInstanceExist());
}

TEST(TSharedFromThis, CopyOfAnObjectIsNotOwned)
{
	const TSharedRef<FNode> Node = MakeShared<FNode>();
	const FNode Copy(*Node);
	EXPECT_FALSE(Copy.DoesSharedInstanceExist());
}

TEST(TSharedPtrDeathTest, DereferencingNullIsFatal)
{
	const TSharedPtr<FNode> Null;
	EXPECT_DEATH(Null->AsShared(), "Assertion failed: IsValid\\(\\) \\[File:.*SharedPointer\\.h\\]");
	EXPECT_DEATH((void)*Null, "Assertion failed: IsValid\\(\\) ");
	EXPECT_DEATH(Null.ToSharedRef(), "Assertion failed: IsValid\\(\\) ");
}

TEST(TSharedPtrDeathTest, ReferenceToNullIsFatal)
{
	EXPECT_DEATH(TSharedRef<FNode>((FNode*)nullptr), "Assertion failed: InObject != nullptr ");
}

TEST(TSharedPtrDeathTest, UnownedObjectHasNoSharedThis)
{
	FLeaf Leaf;
	EXPECT_DEATH(Leaf.Me(), "Assertion failed: SharedThis.Get\\(\\) == this ");
}

TEST(TSharedRef, MayBeAssignedFromInsideTheObjectThatGoes)
{
	struct FLink
	{
		explicit FLink(int32 InValue)
			: Value(InValue)
		{}
		TSharedPtr<TSharedRef<FLink>> Next;
		int32 Value;
	};
	TSharedRef<FLink> Head = MakeShared<FLink>(1);
	Head->Next = MakeShared<TSharedRef<FLink>>(MakeShared<FLink>(2));
	Head = *Head->Next;
	EXPECT_EQ(2, Head->Value);
	EXPECT_TRUE(Head.IsUnique());
}
