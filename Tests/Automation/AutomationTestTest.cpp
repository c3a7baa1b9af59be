// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Utf8.h"

#include "Misc/AutomationTest.h"
#include "UObject/NameTypes.h"

namespace
{
	std::string Trace;
}

BEGIN_DEFINE_SPEC(
	FOrderSpec, "Core.Order", EAutomationTestFlags::ApplicationContextMask | EAutomationTestFlags::EngineFilter)
	void Note(const char* What)
	{
		Trace += What;
	}
	int32 NumDefined = 0;
END_DEFINE_SPEC(FOrderSpec)

void FOrderSpec::Define()
{
	++NumDefined;
	BeforeEach([this]() { Note("1"); });
	AfterEach([this]() { Note("9"); });
	Describe("Outer",
		[this]()
		{
			BeforeEach([this]() { Note("2"); });
			Describe("inner",
				[this]()
				{
					BeforeEach([this]() { Note("3"); });
					BeforeEach([this]() { Note("4"); });
					It("should run deep", [this]() { Note("x"); });
					AfterEach([this]() { Note("7"); });
				});
			It("should run shallow", [this]() { Note("y"); });
			AfterEach([this]() { Note("8"); });
		});
	It("should count its definitions",
		[this]()
		{
			Note("z");
			TestEqual(TEXT("Definitions"), NumDefined, 1);
		});
}

namespace
{
	/** The cases of one spec. */
	TArray<FAutomationTestInfo> CasesOf(const char* SuiteName)
	{
		TArray<FAutomationTestInfo> Cases;
		FAutomationTestFramework::Get().GetValidTestNames(Cases);
		Cases.RemoveAll([SuiteName](const FAutomationTestInfo& Info) { return Utf8(Info.SuiteName) != SuiteName; });
		return Cases;
	}

	FAutomationTestExecutionInfo RunOne(const FAutomationTestInfo& Info)
	{
		Trace.clear();
		return Info.Test->RunCase(Info.CaseIndex);
	}

	/** A spec whose one case is given at run time. */
	class FSingleSpec : public FAutomationSpecBase
	{
	public:
		explicit FSingleSpec(TFunction<void(FSingleSpec&)> InBody)
			: FAutomationSpecBase(TEXT("FSingleSpec"), false), Body(std::move(InBody))
		{}
		virtual FString GetBeautifiedTestName() const override { return TEXT("Core.Single"); }
		virtual FString GetTestSourceFileName() const override { return __FILE__; }

		std::vector<std::string> Errors()
		{
			std::vector<std::string> Result;
			for (const FString& Error : RunCase(0).Errors)
			{
				Result.push_back(Utf8(Error));
			}
			return Result;
		}

	protected:
		virtual void Define() override
		{
			It("should run", [this]() { Body(*this); });
		}

	private:
		TFunction<void(FSingleSpec&)> Body;
	};

	std::vector<std::string> ErrorsOf(TFunction<void(FSingleSpec&)> Body)
	{
		return FSingleSpec(Body).Errors();
	}

	typedef std::vector<std::string> FLines;
}

TEST(FAutomationSpec, NamesItsCasesBySentence)
{
	const TArray<FAutomationTestInfo> Cases = CasesOf("Core.Order");
	ASSERT_EQ(Cases.Num(), 3);
	EXPECT_EQ(Utf8(Cases[0].CaseName), "Outer inner should run deep");
	EXPECT_EQ(Utf8(Cases[1].CaseName), "Outer should run shallow");
	EXPECT_EQ(Utf8(Cases[2].CaseName), "should count its definitions");
}

TEST(FAutomationSpec, KnowsWhereItsCasesStand)
{
	const TArray<FAutomationTestInfo> Cases = CasesOf("Core.Order");
	ASSERT_EQ(Cases.Num(), 3);
	EXPECT_EQ(Utf8(Cases[0].SourceFile), "Tests/Automation/AutomationTestTest.cpp");
	EXPECT_GT(Cases[0].SourceLine, 20);
	EXPECT_GT(Cases[1].SourceLine, Cases[0].SourceLine);
}

TEST(FAutomationSpec, RunsBeforeEachFromOuterToInnerAndAfterEachBack)
{
	const TArray<FAutomationTestInfo> Cases = CasesOf("Core.Order");
	ASSERT_EQ(Cases.Num(), 3);
	RunOne(Cases[0]);
	EXPECT_EQ(Trace, "1234x789");
	RunOne(Cases[1]);
	EXPECT_EQ(Trace, "12y89");
	RunOne(Cases[2]);
	EXPECT_EQ(Trace, "1z9");
}

TEST(FAutomationSpec, IsDefinedOnce)
{
	const TArray<FAutomationTestInfo> Cases = CasesOf("Core.Order");
	ASSERT_EQ(CasesOf("Core.Order").Num(), 3);
	EXPECT_EQ(RunOne(Cases[2]).Errors.Num(), 0);
}

TEST(FAutomationSpec, IsForgottenWithItsModule)
{
	{
		const FSingleSpec Single([](FSingleSpec&) {});
		EXPECT_EQ(CasesOf("Core.Single").Num(), 1);
	}
	EXPECT_EQ(CasesOf("Core.Single").Num(), 0);
}

TEST(FAutomationSpec, StartsEachRunWithoutErrors)
{
	FSingleSpec Single([](FSingleSpec& Spec) { Spec.AddError(TEXT("wrong")); });
	EXPECT_EQ(Single.Errors(), FLines{"wrong"});
	EXPECT_EQ(Single.Errors(), FLines{"wrong"});
}

TEST(FAutomationSpec, InformationIsNoError)
{
	FSingleSpec Single(
		[](FSingleSpec& Spec)
		{
			Spec.AddInfo(TEXT("by the way"));
			EXPECT_FALSE(Spec.HasAnyErrors());
			Spec.AddError(TEXT("wrong"));
			EXPECT_TRUE(Spec.HasAnyErrors());
		});
	const FAutomationTestExecutionInfo Result = Single.RunCase(0);
	ASSERT_EQ(Result.Infos.Num(), 1);
	EXPECT_EQ(Utf8(Result.Infos[0]), "by the way");
}

TEST(FAutomationSpec, TruthAndFalsehood)
{
	EXPECT_EQ(ErrorsOf(
				  [](FSingleSpec& Spec)
				  {
					  EXPECT_TRUE(Spec.TestTrue("a", true));
					  EXPECT_FALSE(Spec.TestTrue("b", false));
					  EXPECT_TRUE(Spec.TestFalse("c", false));
					  EXPECT_FALSE(Spec.TestFalse("d", true));
				  }),
		(FLines{"Expected 'b' to be true.", "Expected 'd' to be false."}));
}

TEST(FAutomationSpec, NullAndNotNull)
{
	const int32 Number = 0;
	EXPECT_EQ(ErrorsOf(
				  [&Number](FSingleSpec& Spec)
				  {
					  EXPECT_TRUE(Spec.TestNull(TEXT("a"), nullptr));
					  EXPECT_FALSE(Spec.TestNull(TEXT("b"), &Number));
					  EXPECT_TRUE(Spec.TestNotNull(TEXT("c"), &Number));
					  EXPECT_FALSE(Spec.TestNotNull(TEXT("d"), nullptr));
				  }),
		(FLines{"Expected 'b' to be null.", "Expected 'd' to be not null."}));
}

TEST(FAutomationSpec, ComparesNumbers)
{
	EXPECT_EQ(ErrorsOf(
				  [](FSingleSpec& Spec)
				  {
					  EXPECT_TRUE(Spec.TestEqual(TEXT("a"), 1, 1));
					  EXPECT_FALSE(Spec.TestEqual(TEXT("b"), 1, 2));
					  EXPECT_TRUE(Spec.TestEqual(TEXT("c"), 1.0f, 1.00001f));
					  EXPECT_FALSE(Spec.TestEqual(TEXT("d"), 1.0f, 1.5f));
					  EXPECT_TRUE(Spec.TestEqual(TEXT("e"), 1.0f, 1.5f, 0.5f));
				  }),
		(FLines{"Expected 'b' to be 2, but it was 1.", "Expected 'd' to be 1.5 within 0.0001, but it was 1."}));
}

TEST(FAutomationSpec, NotANumberEqualsNothing)
{
	const float NotANumber = std::stof("nan");
	EXPECT_EQ(
		ErrorsOf([NotANumber](FSingleSpec& Spec) { Spec.TestEqual(TEXT("a"), NotANumber, NotANumber); }).size(), 1u);
}

TEST(FAutomationSpec, ComparesStringsExactly)
{
	EXPECT_EQ(ErrorsOf(
				  [](FSingleSpec& Spec)
				  {
					  EXPECT_TRUE(Spec.TestEqual(TEXT("a"), FString(TEXT("x")), TEXT("x")));
					  EXPECT_FALSE(Spec.TestEqual(TEXT("b"), FString(TEXT("x")), TEXT("X")));
					  EXPECT_FALSE(Spec.TestEqual(TEXT("c"), FString(TEXT("x")), FString(TEXT("X"))));
					  EXPECT_FALSE(Spec.TestEqual(TEXT("d"), TEXT("x"), TEXT("X")));
				  }),
		(FLines{"Expected 'b' to be \"X\", but it was \"x\".", "Expected 'c' to be \"X\", but it was \"x\".",
			"Expected 'd' to be \"X\", but it was \"x\"."}));
}

TEST(FAutomationSpec, ComparesOtherValuesByTheirOwnEquality)
{
	EXPECT_EQ(ErrorsOf(
				  [](FSingleSpec& Spec)
				  {
					  EXPECT_TRUE(Spec.TestEqual(TEXT("a"), FName("x"), FName("X")));
					  EXPECT_FALSE(Spec.TestEqual(TEXT("b"), FName("x"), FName("y")));
					  EXPECT_TRUE(Spec.TestNotEqual(TEXT("c"), FName("x"), FName("y")));
					  EXPECT_FALSE(Spec.TestNotEqual(TEXT("d"), 1, 1));
				  })
				  .size(),
		2u);
}
