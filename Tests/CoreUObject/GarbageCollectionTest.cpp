// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <set>
#include <vector>

#include "TestTypes.h"
#include "UObject/GCObject.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

namespace
{
	void Collect()
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}

	/** A root for the length of a test. */
	class FRootedNode
	{
	public:
		FRootedNode() : Node(NewObject<UTestNode>()) { Node->AddToRoot(); }
		~FRootedNode() { Node->RemoveFromRoot(); }
		UTestNode* operator->() const { return Node; }
		UTestNode* Get() const { return Node; }

	private:
		UTestNode* Node;
	};

	class FNodeHolder : public FGCObject
	{
	public:
		virtual void AddReferencedObjects(FReferenceCollector& Collector) override
		{
			Collector.AddReferencedObject(Node);
		}

		UTestNode* Node = nullptr;
	};

	/** A random graph of nodes, and by whom each node is referred to. */
	struct FGraph
	{
		struct FEdge
		{
			int From;
			int To;
			/** How the reference is held: pointer, array, structure, array of structures, or seen by nobody. */
			int Kind;
		};

		std::vector<UTestNode*> Nodes;
		std::vector<int> Outers;
		std::vector<FEdge> Edges;
		std::set<int> Roots;
		std::set<int> PendingKill;

		static FGraph Make();
		std::set<int> GetReachable() const;

	private:
		void AddEdge(const FEdge& Edge);
		bool IsTaken(const FEdge& Edge) const;
	};

	FGraph FGraph::Make()
	{
		FGraph Graph;
		const int Num = *rc::gen::inRange(1, 12);
		for (int Index = 0; Index < Num; ++Index)
		{
			// An outer is an earlier node, or the transient package.
			const int Outer = *rc::gen::inRange(-Num, Index);
			Graph.Outers.push_back(Outer < 0 ? -1 : Outer);
			Graph.Nodes.push_back(
				Outer < 0 ? NewObject<UTestNode>() : NewObject<UTestNode>(Graph.Nodes[static_cast<size_t>(Outer)]));
			if (*rc::gen::inRange(0, 5) == 0)
			{
				Graph.Roots.insert(Index);
				Graph.Nodes.back()->SetFlags(RF_Standalone);
			}
			if (*rc::gen::inRange(0, 6) == 0)
			{
				Graph.PendingKill.insert(Index);
				Graph.Nodes.back()->MarkPendingKill();
			}
		}
		const int NumEdges = *rc::gen::inRange(0, Num * 3);
		for (int Index = 0; Index < NumEdges; ++Index)
		{
			Graph.AddEdge({*rc::gen::inRange(0, Num), *rc::gen::inRange(0, Num), *rc::gen::inRange(0, 5)});
		}
		return Graph;
	}

	bool FGraph::IsTaken(const FEdge& Edge) const
	{
		for (const FEdge& Other : Edges)
		{
			const bool bSingle = Edge.Kind == 0 || Edge.Kind == 2 || Edge.Kind == 4;
			if (bSingle && Other.From == Edge.From && Other.Kind == Edge.Kind)
			{
				return true;
			}
		}
		return false;
	}

	void FGraph::AddEdge(const FEdge& Edge)
	{
		if (IsTaken(Edge))
		{
			return;
		}
		UTestNode& From = *Nodes[static_cast<size_t>(Edge.From)];
		UTestNode* const To = Nodes[static_cast<size_t>(Edge.To)];
		switch (Edge.Kind)
		{
			case 0:
				From.Next = To;
				break;
			case 1:
				From.Links.Add(To);
				break;
			case 2:
				From.Held.Target = To;
				break;
			case 3:
				From.HeldMany.AddDefaulted_GetRef().Target = To;
				break;
			default:
				From.Unseen = To;
		}
		Edges.push_back(Edge);
	}

	/** Plain reachability: outers count even if pending kill, references only if not. */
	std::set<int> FGraph::GetReachable() const
	{
		std::set<int> Reached;
		for (const int Root : Roots)
		{
			if (!PendingKill.count(Root))
			{
				Reached.insert(Root);
			}
		}
		for (size_t Before = static_cast<size_t>(-1); Before != Reached.size();)
		{
			Before = Reached.size();
			for (const int Index : std::set<int>(Reached))
			{
				if (Outers[static_cast<size_t>(Index)] >= 0)
				{
					Reached.insert(Outers[static_cast<size_t>(Index)]);
				}
			}
			for (const FEdge& Edge : Edges)
			{
				if (Edge.Kind != 4 && Reached.count(Edge.From) && !PendingKill.count(Edge.To))
				{
					Reached.insert(Edge.To);
				}
			}
		}
		return Reached;
	}
}

RC_GTEST_PROP(CollectGarbage, KeepsExactlyWhatCanBeReached, ())
{
	Collect();
	const FGraph Graph = FGraph::Make();
	const std::set<int> Reachable = Graph.GetReachable();
	std::vector<TWeakObjectPtr<UTestNode>> Weak(Graph.Nodes.begin(), Graph.Nodes.end());
	UTestNode::NumDestroyed = 0;
	Collect();
	const int NumDead = static_cast<int>(Graph.Nodes.size() - Reachable.size());
	const int NumDestroyed = UTestNode::NumDestroyed;
	std::vector<bool> Alive;
	for (const TWeakObjectPtr<UTestNode>& Pointer : Weak)
	{
		Alive.push_back(Pointer.Get(true) != nullptr);
		if (Pointer.Get(true))
		{
			// The next round's graph begins without this one.
			Pointer.Get(true)->ClearFlags(RF_Standalone);
		}
	}
	RC_ASSERT(NumDestroyed == NumDead);
	for (size_t Index = 0; Index < Alive.size(); ++Index)
	{
		RC_ASSERT(Alive[Index] == (Reachable.count(static_cast<int>(Index)) == 1));
	}
}

TEST(CollectGarbage, KeepsWhatPointersArraysAndStructuresReferTo)
{
	const FRootedNode Root;
	Root->Next = NewObject<UTestNode>();
	Root->Links = {nullptr, NewObject<UTestNode>()};
	Root->Held.Target = NewObject<UTestNode>();
	Root->HeldMany.AddDefaulted_GetRef().Target = NewObject<UTestNode>();
	const TWeakObjectPtr<UTestNode> Unseen = NewObject<UTestNode>();
	Root->Unseen = Unseen.Get();
	Collect();
	EXPECT_TRUE(IsValid(Root->Next));
	EXPECT_TRUE(IsValid(Root->Links[1]));
	EXPECT_TRUE(IsValid(Root->Held.Target));
	EXPECT_TRUE(IsValid(Root->HeldMany[0].Target));
	EXPECT_EQ(Unseen.Get(), nullptr);
}

TEST(CollectGarbage, DestroysCyclesThatNothingRefersTo)
{
	Collect();
	UTestNode* const A = NewObject<UTestNode>();
	A->Next = NewObject<UTestNode>();
	A->Next->Next = A;
	UTestNode::NumDestroyed = 0;
	Collect();
	EXPECT_EQ(UTestNode::NumDestroyed, 2);
}

TEST(CollectGarbage, KeepsTheOutersOfWhatItKeeps)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/KeptByItsAsset"));
	UTestNode* const Outer = NewObject<UTestNode>(Package);
	UTestNode* const Asset = NewObject<UTestNode>(Outer, TEXT("Asset"), RF_Standalone);
	Outer->MarkPendingKill();
	Collect();
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/KeptByItsAsset")), Package);
	EXPECT_EQ(Asset->GetOuter(), Outer);
	Asset->ClearFlags(RF_Standalone);
	Collect();
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/KeptByItsAsset")), nullptr);
}

TEST(CollectGarbage, DestroysPartsThatNothingRefersToButTheirOuter)
{
	const FRootedNode Root;
	const TWeakObjectPtr<UTestNode> Part = NewObject<UTestNode>(Root.Get());
	Collect();
	EXPECT_FALSE(Part.IsValid());
}

TEST(CollectGarbage, ClearsReferencesToWhatIsPendingKill)
{
	const FRootedNode Root;
	UTestNode* const Dead = NewObject<UTestNode>();
	UTestNode* const Alive = NewObject<UTestNode>();
	Root->Next = Dead;
	Root->Links = {Dead, Alive, Dead};
	Root->Held.Target = Dead;
	FNodeHolder Holder;
	Holder.Node = Dead;
	Dead->MarkPendingKill();
	const TWeakObjectPtr<UTestNode> WeakDead(Dead);
	Collect();
	EXPECT_EQ(Root->Next, nullptr);
	EXPECT_EQ(Root->Links, (TArray<UTestNode*>{nullptr, Alive, nullptr}));
	EXPECT_EQ(Root->Held.Target, nullptr);
	EXPECT_EQ(Holder.Node, nullptr);
	EXPECT_EQ(WeakDead.Get(true), nullptr);
}

TEST(CollectGarbage, KeepsWhatNativeHoldersReferTo)
{
	FNodeHolder Holder;
	Holder.Node = NewObject<UTestNode>();
	TWeakObjectPtr<UTestNode> Weak = Holder.Node;
	{
		const FNodeHolder Copy(Holder);
		Holder.Node = nullptr;
		Collect();
		EXPECT_TRUE(Weak.IsValid());
	}
	Collect();
	EXPECT_FALSE(Weak.IsValid());
}

TEST(CollectGarbage, AsksClassesForReferencesThatAreNotReflected)
{
	UTestNativeHolder* const Holder = NewObject<UTestNativeHolder>();
	Holder->AddToRoot();
	Holder->Held = {NewObject<UTestNode>(), NewObject<UTestNode>()};
	Holder->Held[1]->MarkPendingKill();
	Collect();
	EXPECT_TRUE(IsValid(Holder->Held[0]));
	EXPECT_EQ(Holder->Held[1], nullptr);
	Holder->RemoveFromRoot();
}

TEST(CollectGarbage, KeepsObjectsWithTheAskedFlagsOnly)
{
	const TWeakObjectPtr<UTestNode> Standalone = NewObject<UTestNode>(GetTransientPackage(), FName(), RF_Standalone);
	const TWeakObjectPtr<UTestNode> Public = NewObject<UTestNode>(GetTransientPackage(), FName(), RF_Public);
	Collect();
	EXPECT_TRUE(Standalone.IsValid());
	EXPECT_FALSE(Public.IsValid());
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Standalone.IsValid());
}

TEST(CollectGarbage, KeepsClassesAndTemplates)
{
	const UTestOwner* const Default = GetDefault<UTestOwner>();
	UTestOwner* const Object = NewObject<UTestOwner>();
	Object->AddToRoot();
	Collect();
	Object->RemoveFromRoot();
	EXPECT_EQ(GetDefault<UTestOwner>(), Default);
	// Nothing refers to this part; an instance's own is gone, the template's stays.
	EXPECT_EQ(FindObject<UTestPart>(Object, TEXT("Unreferenced")), nullptr);
	EXPECT_NE(FindObject<UTestPart>(GetMutableDefault<UTestOwner>(), TEXT("Unreferenced")), nullptr);
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("TestOwner")), UTestOwner::StaticClass());
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Engine/Transient")), GetTransientPackage());
}

TEST(CollectGarbage, TellsAllDyingObjectsBeforeItDestroysOne)
{
	Collect();
	UTestNode::DestroyedNames.Empty();
	UTestNode::NumDyingButHeld = 0;
	UTestNode* const A = NewObject<UTestNode>(GetTransientPackage(), TEXT("A"));
	A->Next = NewObject<UTestNode>(GetTransientPackage(), TEXT("B"));
	A->Next->Next = A;
	Collect();
	EXPECT_TRUE(UTestNode::DestroyedNames.Contains(TEXT("A>B")));
	EXPECT_TRUE(UTestNode::DestroyedNames.Contains(TEXT("B>A")));
	EXPECT_EQ(UTestNode::NumDyingButHeld, 0);
}

TEST(CollectGarbage, FreesTheNamesOfDeadObjects)
{
	NewObject<UTestNode>(GetTransientPackage(), TEXT("Reborn"));
	Collect();
	EXPECT_EQ(FindObject<UTestNode>(nullptr, TEXT("/Engine/Transient.Reborn")), nullptr);
	EXPECT_NE(NewObject<UTestNode>(GetTransientPackage(), TEXT("Reborn")), nullptr);
}

TEST(TWeakObjectPtr, IsEmptyOnceTheObjectIsPendingKill)
{
	UTestNode* const Object = NewObject<UTestNode>();
	const TWeakObjectPtr<UTestNode> Weak(Object);
	EXPECT_EQ(Weak.Get(), Object);
	EXPECT_EQ(Weak->GetName(), Object->GetName());
	EXPECT_FALSE(Weak.IsStale());
	Object->MarkPendingKill();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_EQ(Weak.Get(true), Object);
	Collect();
	EXPECT_EQ(Weak.Get(true), nullptr);
}

TEST(TWeakObjectPtr, IsNotTakenInByALaterObjectInTheSamePlace)
{
	const TWeakObjectPtr<UTestNode> Weak(NewObject<UTestNode>());
	const uint32 Place = Weak->GetUniqueID();
	Collect();
	std::vector<UTestNode*> Later;
	while (Later.empty() || Later.back()->GetUniqueID() != Place)
	{
		ASSERT_LT(Later.size(), 1000u);
		Later.push_back(NewObject<UTestNode>());
	}
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_NE(Weak, TWeakObjectPtr<UTestNode>(Later.back()));
}

TEST(TWeakObjectPtr, ComparesByObject)
{
	UTestDerivedOwner* const Object = NewObject<UTestDerivedOwner>();
	const TWeakObjectPtr<UTestDerivedOwner> Derived(Object);
	TWeakObjectPtr<UTestOwner> Base(Derived);
	EXPECT_EQ(Base, Derived);
	EXPECT_EQ(Base, Object);
	EXPECT_EQ(GetTypeHash(Base), GetTypeHash(Derived));
	EXPECT_EQ(&*Base, Object);
	Base.Reset();
	EXPECT_NE(Base, Derived);
	EXPECT_NE(Base, Object);
	EXPECT_EQ(Base, TWeakObjectPtr<UTestOwner>());
	EXPECT_FALSE(Base.IsStale());
	EXPECT_EQ(TWeakObjectPtr<UTestOwner>(nullptr).Get(), nullptr);
}

TEST(StaticExit, DestroysEverythingAndLetsTheObjectSystemStartAgain)
{
	const TWeakObjectPtr<UTestNode> Weak = NewObject<UTestNode>(GetTransientPackage(), FName(), RF_Standalone);
	const TWeakObjectPtr<UClass> Class = UTestOwner::StaticClass();
	UTestNode::NumDestroyed = 0;
	StaticExit();
	EXPECT_GE(UTestNode::NumDestroyed, 1);
	EXPECT_EQ(Weak.Get(true), nullptr);
	EXPECT_EQ(Class.Get(true), nullptr);
	StaticExit();
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("TestDerivedOwner")), nullptr);
	EXPECT_EQ(NewObject<UTestDerivedOwner>()->Part->Size, 20);
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("TestDerivedOwner")), UTestDerivedOwner::StaticClass());
	RegisterReflection_CoreUObjectTests();
	EXPECT_EQ(TBaseStructure<FVector>::Get()->GetName(), FString(TEXT("Vector")));
}

#if !defined(__SANITIZE_ADDRESS__)
// Under the address sanitizer memory is not used again soon enough to see this.
TEST(CollectGarbage, GivesALaterObjectAtTheSameAddressNamesOfItsOwn)
{
	UTestNode* const Outer = NewObject<UTestNode>();
	NewObject<UTestNode>(Outer);
	Collect();
	UTestNode* Later = nullptr;
	for (int32 Try = 0; Later != Outer; ++Try)
	{
		ASSERT_LT(Try, 100000);
		Later = NewObject<UTestNode>();
	}
	EXPECT_EQ(NewObject<UTestNode>(Later)->GetName(), FString(TEXT("TestNode_0")));
}
#endif

#if defined(__SANITIZE_ADDRESS__)
TEST(CollectGarbageDeathTest, PoisonsTheMemoryOfDeadObjects)
{
	UTestNode* const Dead = NewObject<UTestNode>();
	Collect();
	EXPECT_DEATH(EXPECT_TRUE(Dead->IsRooted()), "use-after-poison");
}

TEST(CollectGarbage, GivesPoisonedMemoryBackInTheEnd)
{
	for (int32 Round = 0; Round < 3; ++Round)
	{
		for (int32 Index = 0; Index < 1000; ++Index)
		{
			NewObject<UTestNode>();
		}
		UTestNode::NumDestroyed = 0;
		Collect();
		EXPECT_GE(UTestNode::NumDestroyed, 1000);
	}
}
#endif
