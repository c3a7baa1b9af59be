// Copyright Corvane. MIT License.
#pragma once

#include <type_traits>

/** Gives an enum class the operators of a bit set. */
#define ENUM_CLASS_FLAGS(Enum) \
	inline constexpr Enum operator|(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>( \
			static_cast<std::underlying_type<Enum>::type>(Lhs) | static_cast<std::underlying_type<Enum>::type>(Rhs)); \
	} \
	inline constexpr Enum operator&(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>( \
			static_cast<std::underlying_type<Enum>::type>(Lhs) & static_cast<std::underlying_type<Enum>::type>(Rhs)); \
	}
