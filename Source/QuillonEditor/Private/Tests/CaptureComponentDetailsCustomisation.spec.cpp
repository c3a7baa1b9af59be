// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Engine/World.h"
#include "Misc/AutomationTest.h"
#include "Templates/Casts.h"
#include "Tests/AutomationEditorCommon.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include "DetailsUser.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FCaptureComponentDetailsCustomisationSpec, "Quillon.CaptureComponentDetails",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	/** Opens the details of one component, or of several. */
	void Open(const TArray<UObject*>& Components);
	void OpenOne();
	/** The row of the plugin's category. */
	int32 FindCategory() const;
	int32 FindHeader(const TCHAR* Header) const
	{
		return User->FindRow(Header, FindCategory());
	}
	/** Tests which rows stand under a header. */
	void TestGroup(const TCHAR* Header, const TCHAR* Rows);
	void TestHeader(const TCHAR* Header, const TCHAR* Key);
	/** Tests what a flag's box shows, "checked", "unchecked" or "undetermined". */
	void TestBox(const TCHAR* Flag, const TCHAR* State);
	void Click(const TCHAR* Flag);
	/** The overrides of a component: "Bloom off; Fog on; ". */
	static FString GetOverrides(const UZAVCaptureComponent* Overridden);
	static void AddOverride(UZAVCaptureComponent * Overridden, const TCHAR* Flag, bool bOn);
	/** Switches a flag of what a component is made from, until the case is over. */
	static void SetDefault(const UZAVCaptureComponent* MadeFromIt, const TCHAR* Flag, bool bOn);
	static UZAVCaptureComponent* GetArchetype(const UObject* Component)
	{
		return Cast<UZAVCaptureComponent>(Component->GetArchetype());
	}

	UZAVCaptureComponent* Component;
	/** Another camera's. */
	UZAVCaptureComponent* Second;
	TUniquePtr<FDetailsUser> User;
	TFunction<void()> PutDefaultsBack;
END_DEFINE_SPEC(FCaptureComponentDetailsCustomisationSpec)

void FCaptureComponentDetailsCustomisationSpec::Open(const TArray<UObject*>& Components)
{
	User.Reset();
	User = MakeUnique<FDetailsUser>(Components);
}

void FCaptureComponentDetailsCustomisationSpec::OpenOne()
{
	Open({Component});
}

int32 FCaptureComponentDetailsCustomisationSpec::FindCategory() const
{
	for (const int32 Row : User->GetRowsBelow(INDEX_NONE))
	{
		if (User->GetNode(Row)->GetNodeName() == FName("Corvane Capture Settings"))
		{
			return Row;
		}
	}
	return INDEX_NONE;
}

void FCaptureComponentDetailsCustomisationSpec::TestGroup(const TCHAR* Header, const TCHAR* Rows)
{
	TestEqual(Header, User->GetNamesBelow(FindHeader(Header)), FString(Rows));
}

void FCaptureComponentDetailsCustomisationSpec::TestHeader(const TCHAR* Header, const TCHAR* Key)
{
	const int32 Row = FindHeader(Header);
	if (TestTrue(Header, Row != INDEX_NONE))
	{
		TestEqual(Header, DescribeText(User->GetName(Row)),
			FString(TEXT("CaptureComponentDetailsCustomisation,")) + Key + TEXT(",") + Header);
		TestTrue(Header, User->GetNode(Row)->GetNodeName() == FName(Header));
		TestTrue(Header, User->GetNode(Row)->GetInitiallyCollapsed());
	}
}

void FCaptureComponentDetailsCustomisationSpec::TestBox(const TCHAR* Flag, const TCHAR* State)
{
	const ECheckBoxState Check = User->GetCheck(User->FindRow(Flag));
	TestEqual(Flag,
		FString(Check == ECheckBoxState::Checked     ? TEXT("checked")
				: Check == ECheckBoxState::Unchecked ? TEXT("unchecked")
													 : TEXT("undetermined")),
		FString(State));
}

void FCaptureComponentDetailsCustomisationSpec::Click(const TCHAR* Flag)
{
	User->Click(User->FindRow(Flag));
}

FString FCaptureComponentDetailsCustomisationSpec::GetOverrides(const UZAVCaptureComponent* Overridden)
{
	FString Overrides;
	for (const FEngineShowFlagsSetting& Setting : Overridden->ShowFlagSettings)
	{
		Overrides += Setting.ShowFlagName + (Setting.Enabled ? TEXT(" on; ") : TEXT(" off; "));
	}
	return Overrides;
}

void FCaptureComponentDetailsCustomisationSpec::AddOverride(
	UZAVCaptureComponent* Overridden, const TCHAR* Flag, bool bOn)
{
	FEngineShowFlagsSetting Setting;
	Setting.ShowFlagName = Flag;
	Setting.Enabled = bOn;
	Overridden->ShowFlagSettings.Add(Setting);
}

void FCaptureComponentDetailsCustomisationSpec::SetDefault(
	const UZAVCaptureComponent* MadeFromIt, const TCHAR* Flag, bool bOn)
{
	GetArchetype(MadeFromIt)
		->ShowFlags.SetSingleFlag(static_cast<uint32>(FEngineShowFlags::FindIndexByName(Flag)), bOn);
}

void FCaptureComponentDetailsCustomisationSpec::Define()
{
	BeforeEach(
		[this]()
		{
			UWorld* World = FAutomationEditorCommonUtils::CreateNewMap();
			Component = World->SpawnActor<AZAVCineCamCapture>()->CaptureComponent;
			Second = World->SpawnActor<AZAVCineCamCapture>()->CaptureComponent;
			UZAVCaptureComponent* Camera = GetArchetype(Component);
			UZAVCaptureComponent* Default = GetMutableDefault<UZAVCaptureComponent>();
			PutDefaultsBack = [Camera, OfCamera = Camera->ShowFlags, Default, OfDefault = Default->ShowFlags]()
			{
				Camera->ShowFlags = OfCamera;
				Default->ShowFlags = OfDefault;
			};
			SetDefault(Component, TEXT("Bloom"), true);
			SetDefault(Component, TEXT("Fog"), false);
		});
	AfterEach(
		[this]()
		{
			User.Reset();
			PutDefaultsBack();
		});

	Describe("The capture settings",
		[this]()
		{
			It("should have seven headers in the order of the engine's groups",
				[this]()
				{
					OpenOne();
					FString Headers;
					for (const int32 Row : User->GetRowsBelow(FindCategory()))
					{
						const FString Name = User->GetName(Row).ToString();
						Headers += Name.EndsWith(TEXT(" Show Flags")) ? Name + TEXT("; ") : FString();
					}
					TestEqual("headers", Headers,
						FString(TEXT("General Show Flags; Advanced Show Flags; Post Processing Show Flags; ")
								TEXT("Light Types Show Flags; Lighting Components Show Flags; ")
									TEXT("Lighting Features Show Flags; Hidden Show Flags; ")));
				});

			It("should have headers that are closed, named as they are shown, and translated",
				[this]()
				{
					OpenOne();
					TestHeader(TEXT("General Show Flags"), TEXT("CommonShowFlagHeader"));
					TestHeader(TEXT("Advanced Show Flags"), TEXT("AdvancedShowFlagsMenu"));
					TestHeader(TEXT("Post Processing Show Flags"), TEXT("PostProcessShowFlagsMenu"));
					TestHeader(TEXT("Light Types Show Flags"), TEXT("LightTypesShowFlagsMenu"));
					TestHeader(TEXT("Lighting Components Show Flags"), TEXT("LightingComponentsShowFlagsMenu"));
					TestHeader(TEXT("Lighting Features Show Flags"), TEXT("LightingFeaturesShowFlagsMenu"));
					TestHeader(TEXT("Hidden Show Flags"), TEXT("HiddenShowFlagsMenu"));
				});

			It("should list the flags of each group by the names that are shown",
				[this]()
				{
					OpenOne();
					TestGroup(TEXT("General Show Flags"),
						TEXT("Anti-aliasing; Atmosphere; BSP; Decals; Fog; Landscape; Particles Sprite; ")
							TEXT("Skeletal Meshes; Static Meshes; Translucency; "));
					TestGroup(TEXT("Advanced Show Flags"),
						TEXT("DeferredLighting; Foliage; Grass; Instanced Static Meshes; Paper 2D Sprites; ")
							TEXT("Render (3D) Text; Temporal AA (instead FXAA); "));
					TestGroup(
						TEXT("Post Processing Show Flags"), TEXT("Bloom; Eye Adaptation; Motion Blur; Tone Curve; "));
					TestGroup(TEXT("Light Types Show Flags"), TEXT("Sky Lighting; "));
					TestGroup(TEXT("Lighting Components Show Flags"), TEXT("Ambient Occlusion; Dynamic Shadows; "));
					TestGroup(TEXT("Lighting Features Show Flags"),
						TEXT("Ambient Cubemap; Distance Field Ambient Occlusion; Light Functions; Light Shafts; ")
							TEXT("Reflection Environment; Screen Space Reflections; ")
								TEXT("Textured Light Profiles (IES); Volumetric Fog; "));
					TestGroup(TEXT("Hidden Show Flags"), TEXT("Game; Lighting; Post-processing; "));
				});

			It("should show each flag by its translated name, find it by that, and offer a box alone",
				[this]()
				{
					OpenOne();
					const int32 Row = User->FindRow(TEXT("Grass"), FindHeader(TEXT("Advanced Show Flags")));
					TestEqual(
						"name", DescribeText(User->GetName(Row)), FString(TEXT("UnrealEd,InstancedGrassSF,Grass")));
					TestEqual("filter", User->GetFilter(Row), FString(TEXT("Grass; ")));
					TestEqual("boxes", User->FindInValue(Row, TEXT("SCheckBox")).Num(), 1);
					TestEqual("texts", User->FindInValue(Row, TEXT("STextBlock")).Num(), 0);
				});

			It("should not show the raw list of overrides, in this category or another one",
				[this]()
				{
					AddOverride(Component, TEXT("Bloom"), false);
					OpenOne();
					TestEqual("row", User->FindRow(TEXT("Show Flag Settings")), static_cast<int32>(INDEX_NONE));
					TestNotEqual(
						"another property", User->FindRow(TEXT("Texture Target")), static_cast<int32>(INDEX_NONE));
				});
		});

	Describe("A flag's box",
		[this]()
		{
			It("should show the template's flag while there is no override",
				[this]()
				{
					OpenOne();
					TestBox(TEXT("Bloom"), TEXT("checked"));
					TestBox(TEXT("Fog"), TEXT("unchecked"));
				});

			It("should not look at the component's own flags",
				[this]()
				{
					Component->ShowFlags.SetSingleFlag(
						static_cast<uint32>(FEngineShowFlags::FindIndexByName(TEXT("Bloom"))), false);
					OpenOne();
					TestBox(TEXT("Bloom"), TEXT("checked"));
				});

			It("should show an override, whatever the letter case of its name",
				[this]()
				{
					AddOverride(Component, TEXT("bloom"), false);
					AddOverride(Component, TEXT("FOG"), true);
					OpenOne();
					TestBox(TEXT("Bloom"), TEXT("unchecked"));
					TestBox(TEXT("Fog"), TEXT("checked"));
				});

			It("should show the first of several overrides",
				[this]()
				{
					AddOverride(Component, TEXT("Bloom"), false);
					AddOverride(Component, TEXT("Bloom"), true);
					OpenOne();
					TestBox(TEXT("Bloom"), TEXT("unchecked"));
				});

			It("should take no notice of overrides of other names",
				[this]()
				{
					AddOverride(Component, TEXT("BloomX"), false);
					AddOverride(Component, TEXT(""), false);
					AddOverride(Component, TEXT("Blo"), false);
					OpenOne();
					TestBox(TEXT("Bloom"), TEXT("checked"));
				});

			It("should show at once what is changed elsewhere",
				[this]()
				{
					OpenOne();
					AddOverride(Component, TEXT("Bloom"), false);
					TestBox(TEXT("Bloom"), TEXT("unchecked"));
					Component->ShowFlagSettings.Empty();
					TestBox(TEXT("Bloom"), TEXT("checked"));
				});

			It("should be undetermined for components that differ, in whatever way",
				[this]()
				{
					AddOverride(Second, TEXT("Bloom"), false);
					AddOverride(Second, TEXT("Fog"), false);
					Open({Component, Second});
					TestBox(TEXT("Bloom"), TEXT("undetermined"));
					TestBox(TEXT("Fog"), TEXT("unchecked"));
				});
		});

	Describe("Clicking a box",
		[this]()
		{
			It("should write one override, and take it back at the second click",
				[this]()
				{
					AddOverride(Component, TEXT("Decals"), false);
					OpenOne();
					Click(TEXT("Bloom"));
					TestEqual("off", GetOverrides(Component), FString(TEXT("Decals off; Bloom off; ")));
					TestBox(TEXT("Bloom"), TEXT("unchecked"));
					Click(TEXT("Bloom"));
					TestEqual("on again", GetOverrides(Component), FString(TEXT("Decals off; ")));
					TestBox(TEXT("Bloom"), TEXT("checked"));
				});

			It("should write an override that switches on what the template has off",
				[this]()
				{
					OpenOne();
					Click(TEXT("Fog"));
					TestEqual("overrides", GetOverrides(Component), FString(TEXT("Fog on; ")));
				});

			It("should remove all overrides of the flag with the default, and keep the order of the others",
				[this]()
				{
					AddOverride(Component, TEXT("Decals"), true);
					AddOverride(Component, TEXT("Bloom"), false);
					AddOverride(Component, TEXT("no flag"), true);
					AddOverride(Component, TEXT("BLOOM"), true);
					AddOverride(Component, TEXT("Fog"), true);
					OpenOne();
					Click(TEXT("Bloom"));
					TestEqual("overrides", GetOverrides(Component), FString(TEXT("Decals on; no flag on; Fog on; ")));
				});

			It("should change the first of several overrides to what is not the default",
				[this]()
				{
					AddOverride(Component, TEXT("bloom"), true);
					AddOverride(Component, TEXT("Bloom"), true);
					OpenOne();
					Click(TEXT("Bloom"));
					TestEqual("overrides", GetOverrides(Component), FString(TEXT("bloom off; Bloom on; ")));
				});

			It("should write to each component, where they differ first what is on",
				[this]()
				{
					AddOverride(Second, TEXT("Bloom"), false);
					Open({Component, Second});
					Click(TEXT("Bloom"));
					TestBox(TEXT("Bloom"), TEXT("checked"));
					TestEqual("second", GetOverrides(Second), FString());
					Click(TEXT("Bloom"));
					TestEqual("first off", GetOverrides(Component), FString(TEXT("Bloom off; ")));
					TestEqual("second off", GetOverrides(Second), FString(TEXT("Bloom off; ")));
				});

			It("should take each component's own template for the default",
				[this]()
				{
					UZAVCaptureComponent* Loose = NewObject<UZAVCaptureComponent>(GetTransientPackage());
					SetDefault(Loose, TEXT("Fog"), true);
					Open({Component, Loose});
					TestBox(TEXT("Fog"), TEXT("undetermined"));
					Click(TEXT("Fog"));
					TestEqual("on", GetOverrides(Component) + GetOverrides(Loose), FString(TEXT("Fog on; ")));
					Click(TEXT("Fog"));
					TestEqual("off, of the camera", GetOverrides(Component), FString());
					TestEqual("off, of the loose one", GetOverrides(Loose), FString(TEXT("Fog off; ")));
				});

			It("should tell each component once, and the panel once, that its overrides were set",
				[this]()
				{
					FString Told;
					const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
						[this, &Told](UObject* Object, FPropertyChangedEvent& Event)
						{
							const bool bSet = Event.ChangeType == EPropertyChangeType::ValueSet;
							Told += Object == Component ? TEXT("first ")
								: Object == Second      ? TEXT("second ")
														: TEXT("? ");
							Told += Event.Property->GetName() + (bSet ? TEXT(" set, ") : TEXT(" ?, "));
							Told += FString::FromInt(Component->ShowFlagSettings.Num()) + TEXT("; ");
						});
					Open({Component, Second});
					Click(TEXT("Bloom"));
					FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
					TestEqual(
						"told", Told, FString(TEXT("first ShowFlagSettings set, 1; second ShowFlagSettings set, 1; ")));
					TestEqual("finished", User->NumFinishedChanges, 1);
				});
		});
}

#endif
