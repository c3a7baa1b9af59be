// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

class FAutomationTestBase;

/** Where a test can run and which set it belongs to. */
namespace EAutomationTestFlags
{
	enum Type
	{
		EditorContext = 0x00000001,
		ClientContext = 0x00000002,
		ServerContext = 0x00000004,
		CommandletContext = 0x00000008,
		ApplicationContextMask = EditorContext | ClientContext | ServerContext | CommandletContext,

		EngineFilter = 0x02000000,
		ProductFilter = 0x04000000,
		FilterMask = EngineFilter | ProductFilter
	};
}

/** What one run of a test left. */
struct FAutomationTestExecutionInfo
{
	TArray<FString> Errors;
	TArray<FString> Infos;
};

/** One case that can be run: an It of a spec. */
struct FAutomationTestInfo
{
	/** The automation spec's name, as "Quillon.Wizard". */
	FString SuiteName;
	/** The case's whole sentence, as "Creation should fail without a name". */
	FString CaseName;
	FString SourceFile;
	int32 SourceLine = 0;
	FAutomationTestBase* Test = nullptr;
	/** The case's place within its test. */
	int32 CaseIndex = 0;
};

/**
 * A test and its assertions. What names the value in the error that a failed assertion adds; the case goes on after it.
 * All assertions return whether they held.
 */
class AUTOMATION_API FAutomationTestBase
{
public:
	/** Registers the test with the framework. */
	FAutomationTestBase(const FString& InName, const bool bInComplexTask);
	virtual ~FAutomationTestBase();
	FAutomationTestBase(const FAutomationTestBase&) = delete;
	FAutomationTestBase& operator=(const FAutomationTestBase&) = delete;

	void AddError(const FString& InError, int32 StackOffset = 0);
	/** Adds a line to the report that is no error. */
	void AddInfo(const FString& InLogItem, int32 StackOffset = 0, bool bCaptureStack = false);
	bool HasAnyErrors() const { return ExecutionInfo.Errors.Num() > 0; }

	bool TestTrue(const FString& What, bool Value);
	bool TestFalse(const FString& What, bool Value);
	bool TestNull(const FString& What, const void* Pointer);
	bool TestNotNull(const FString& What, const void* Pointer);
	bool TestEqual(const FString& What, int32 Actual, int32 Expected);
	bool TestEqual(const FString& What, float Actual, float Expected, float Tolerance = 1.e-4f);
	/** Strings must be equal unit for unit: the assertion is stricter than their own comparison. */
	bool TestEqual(const FString& What, const TCHAR* Actual, const TCHAR* Expected);
	bool TestEqual(const FString& What, const FString& Actual, const TCHAR* Expected);
	bool TestEqual(const FString& What, const FString& Actual, const FString& Expected);

	template <typename ValueType>
	bool TestEqual(const FString& What, const ValueType& Actual, const ValueType& Expected)
	{
		return Expect(Actual == Expected, What, TEXT("equal what was expected"));
	}

	template <typename ValueType>
	bool TestNotEqual(const FString& What, const ValueType& Actual, const ValueType& Expected)
	{
		return Expect(!(Actual == Expected), What, TEXT("differ from what was given"));
	}

	/** Adds the test's cases. */
	virtual void GetTests(TArray<FAutomationTestInfo>& OutCases) = 0;

	/** Runs one case and gives back what it reported. */
	FAutomationTestExecutionInfo RunCase(int32 CaseIndex);

protected:
	virtual void RunTest(int32 CaseIndex) = 0;

private:
	bool Expect(bool bHolds, const FString& What, const TCHAR* Property);

	FString TestName;
	FAutomationTestExecutionInfo ExecutionInfo;
};

/** A test that is written as sentences: Describe("Creation", …) with It("should fail without a name", …) within. */
class AUTOMATION_API FAutomationSpecBase : public FAutomationTestBase
{
public:
	FAutomationSpecBase(const FString& InName, const bool bInComplexTask);
	virtual ~FAutomationSpecBase();

	virtual void GetTests(TArray<FAutomationTestInfo>& OutCases) override;

	/** The automation spec's name, as "Quillon.Wizard". */
	virtual FString GetBeautifiedTestName() const = 0;
	virtual FString GetTestSourceFileName() const = 0;

protected:
	/** Says what the cases are, by the four operations below. Called once, when they are first listed or run. */
	virtual void Define() = 0;

	/** Groups cases; may be nested. DoWork is called at once. */
	void Describe(const FString& InDescription, TFunction<void()> DoWork);
	/** One case. */
	void It(const FString& InDescription, TFunction<void()> DoWork, int32 SourceLine = __builtin_LINE());
	/** Runs before each case of this group and of the groups within, outer groups first. */
	void BeforeEach(TFunction<void()> DoWork);
	/** Runs after each case of this group and of the groups within, inner groups first. */
	void AfterEach(TFunction<void()> DoWork);

	virtual void RunTest(int32 CaseIndex) override;

private:
	struct FGroup;
	struct FCase;

	void EnsureDefinitions();

	TArray<TSharedRef<FCase>> Cases;
	/** The group being defined; null outside Define. */
	TSharedPtr<FGroup> CurrentGroup;
	bool bHasBeenDefined = false;
};

/** Knows all tests of the process. */
class AUTOMATION_API FAutomationTestFramework
{
public:
	static FAutomationTestFramework& Get();

	/** Called by the tests themselves. */
	void RegisterAutomationTest(FAutomationTestBase* InTest);
	void UnregisterAutomationTest(FAutomationTestBase* InTest);

	/** Adds every case of every registered test, in order of registration. */
	void GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const;

private:
	TArray<FAutomationTestBase*> Tests;
};

/** Begins a spec with members; Define is written outside. The engine asks for a context and exactly one filter. */
#define BEGIN_DEFINE_SPEC(TClass, PrettyName, TFlags) \
	class TClass : public FAutomationSpecBase \
	{ \
		static_assert(((TFlags)&EAutomationTestFlags::ApplicationContextMask) != 0, "A spec needs a context"); \
		static_assert(((TFlags)&EAutomationTestFlags::FilterMask) == EAutomationTestFlags::EngineFilter || \
				((TFlags)&EAutomationTestFlags::FilterMask) == EAutomationTestFlags::ProductFilter, \
			"A spec needs exactly one filter"); \
\
	public: \
		explicit TClass(const FString& InName) : FAutomationSpecBase(InName, false) {} \
		virtual FString GetBeautifiedTestName() const override { return PrettyName; } \
		virtual FString GetTestSourceFileName() const override { return __FILE__; } \
\
	protected: \
		virtual void Define() override;

#define END_DEFINE_SPEC(TClass) \
	} \
	; \
	namespace \
	{ \
		TClass TClass##AutomationSpecInstance(TEXT(#TClass)); \
	}

/** A spec without members. */
#define DEFINE_SPEC(TClass, PrettyName, TFlags) \
	BEGIN_DEFINE_SPEC(TClass, PrettyName, TFlags) \
	END_DEFINE_SPEC(TClass)
