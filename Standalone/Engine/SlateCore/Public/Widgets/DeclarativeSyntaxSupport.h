// Copyright Corvane. MIT License.
#pragma once

#include "Layout/Children.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Templates/Function.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

/**
 * @file How widgets are declared and made.
 *
 *     SNew(SVerticalBox)
 *     + SVerticalBox::Slot().AutoHeight().Padding(0, 5, 0, 0)
 *     [
 *         SAssignNew(Warning, STextBlock).Text(LOCTEXT(...)).Visibility(this, &SMine::GetWarningVisibility)
 *     ]
 *
 * A binding with an object holds it weakly, except the _Raw form.
 */

/** Makes a widget; arguments, slots and content follow. */
#define SNew(WidgetType) MakeTDecl<WidgetType>(#WidgetType) <<= WidgetType::FArguments()

/** SNew that also assigns the widget to a variable, before the widget's Construct runs. */
#define SAssignNew(ExposeAs, WidgetType) \
	MakeTDecl<WidgetType>(#WidgetType).Expose(ExposeAs) <<= WidgetType::FArguments()

/** Opens a widget's arguments; the constructor's body, and before it the arguments' defaults, follow. */
#define SLATE_BEGIN_ARGS(InWidgetType) \
public: \
	struct FArguments : public TSlateBaseNamedArgs<FArguments> \
	{ \
		typedef FArguments WidgetArgsType; \
		typedef InWidgetType WidgetType; \
		FArguments()

#define SLATE_END_ARGS() \
	} \
	;

/** An argument that is a plain value. */
#define SLATE_ARGUMENT(ArgType, ArgName) \
	ArgType _##ArgName; \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		_##ArgName = InArg; \
		return this->Me(); \
	}

/** An argument that is a value or is asked for again and again. */
#define SLATE_ATTRIBUTE(AttrType, AttrName) \
	TAttribute<AttrType> _##AttrName; \
	WidgetArgsType& AttrName(const TAttribute<AttrType>& InAttribute) \
	{ \
		_##AttrName = InAttribute; \
		return this->Me(); \
	} \
	template <typename UserClass, typename BaseClass, typename... Args, typename... VarTypes> \
	WidgetArgsType& AttrName(UserClass* Object, AttrType (BaseClass::*Method)(Args...) const, VarTypes... Vars) \
	{ \
		return AttrName( \
			TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateSP(Object, Method, Vars...))); \
	} \
	template <typename UserClass, typename BaseClass, typename... Args, typename... VarTypes> \
	WidgetArgsType& AttrName( \
		const TSharedRef<UserClass>& Object, AttrType (BaseClass::*Method)(Args...) const, VarTypes... Vars) \
	{ \
		return AttrName( \
			TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateSP(Object, Method, Vars...))); \
	} \
	template <typename UserClass, typename BaseClass, typename... Args, typename... VarTypes> \
	WidgetArgsType& AttrName##_Raw( \
		const UserClass* Object, AttrType (BaseClass::*Method)(Args...) const, VarTypes... Vars) \
	{ \
		return AttrName( \
			TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateRaw(Object, Method, Vars...))); \
	} \
	template <typename... Args, typename... VarTypes> \
	WidgetArgsType& AttrName##_Static(AttrType (*Function)(Args...), VarTypes... Vars) \
	{ \
		return AttrName(TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateStatic(Function, Vars...))); \
	} \
	WidgetArgsType& AttrName##_Lambda(const TFunction<AttrType()>& Functor) \
	{ \
		return AttrName(TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateLambda(Functor))); \
	}

/** An argument that is called when something happens. */
#define SLATE_EVENT(DelegateName, EventName) \
	DelegateName _##EventName; \
	WidgetArgsType& EventName(const DelegateName& InDelegate) \
	{ \
		_##EventName = InDelegate; \
		return this->Me(); \
	} \
	template <typename ObjectType, typename MethodType, typename... VarTypes> \
	WidgetArgsType& EventName(const ObjectType& Object, MethodType Method, VarTypes... Vars) \
	{ \
		return EventName(DelegateName::CreateSP(Object, Method, Vars...)); \
	} \
	template <typename UserClass, typename MethodType, typename... VarTypes> \
	WidgetArgsType& EventName##_Raw(UserClass* Object, MethodType Method, VarTypes... Vars) \
	{ \
		return EventName(DelegateName::CreateRaw(Object, Method, Vars...)); \
	} \
	template <typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName##_Static(FunctionType Function, VarTypes... Vars) \
	{ \
		return EventName(DelegateName::CreateStatic(Function, Vars...)); \
	} \
	template <typename FunctorType, typename... VarTypes> \
	WidgetArgsType& EventName##_Lambda(FunctorType&& Functor, VarTypes... Vars) \
	{ \
		return EventName(DelegateName::CreateLambda(std::forward<FunctorType>(Functor), Vars...)); \
	}

/** The widget takes any number of slots, each added with +. */
#define SLATE_SUPPORTS_SLOT(SlotType) \
	TArray<SlotType*> Slots; \
	WidgetArgsType& operator+(SlotType& SlotToAdd) \
	{ \
		Slots.Add(&SlotToAdd); \
		return this->Me(); \
	}

/** The widget takes one content, given as [ ... ]. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName) \
	FNamedSlotProperty _##SlotName; \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild) \
	{ \
		_##SlotName.Widget = InChild; \
		return this->Me(); \
	}

/** What a content slot was given; the null widget when nothing was. */
struct FNamedSlotProperty
{
	TSharedRef<SWidget> Widget = SNullWidget::NullWidget;
};

/** The arguments that every widget has; each setter returns the widget's own argument type. */
template <typename InWidgetArgsType>
struct TSlateBaseNamedArgs
{
	typedef InWidgetArgsType WidgetArgsType;

	TSlateBaseNamedArgs() : _IsEnabled(true), _Visibility(EVisibility::Visible) {}
	WidgetArgsType& Me() { return static_cast<WidgetArgsType&>(*this); }
	SLATE_ATTRIBUTE(bool, IsEnabled)
	SLATE_ATTRIBUTE(EVisibility, Visibility)
};

/** A widget between SNew and the arguments that follow it. */
template <typename WidgetType>
class TDecl
{
public:
	explicit TDecl(const ANSICHAR* InType) : Widget(MakeShared<WidgetType>()), Type(InType) {}

	template <typename ExposeAsWidgetType>
	TDecl& Expose(ExposeAsWidgetType& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}
	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) const
	{
		Widget->SWidgetConstruct(Type, InArgs._Visibility, InArgs._IsEnabled);
		Widget->Construct(InArgs);
		return Widget;
	}

private:
	TSharedRef<WidgetType> Widget;
	const ANSICHAR* Type;
};

template <typename WidgetType>
TDecl<WidgetType> MakeTDecl(const ANSICHAR* InType)
{
	return TDecl<WidgetType>(InType);
}
