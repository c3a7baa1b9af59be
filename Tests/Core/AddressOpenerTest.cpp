// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Standalone/AddressOpener.h"

namespace
{
	/** Nothing if the address may be passed on, else the reason. */
	std::string Refusal(const FString& Address)
	{
		FString Reason;
		const bool bAllowed = FAddressOpener::IsAllowed(Address, &Reason);
		EXPECT_EQ(bAllowed, Reason.IsEmpty());
		EXPECT_EQ(bAllowed, FAddressOpener::IsAllowed(Address));
		return TCHAR_TO_UTF8(Reason);
	}
}

TEST(FAddressOpener, AllowsPagesOfTheWeb)
{
	for (const TCHAR* Address : {TEXT("https://example.com"), TEXT("http://example.com/"),
			 TEXT("HTTPS://Example.com/#/"), TEXT("hTTp://example.com:8080/a?b=c&d=%20#e"),
			 TEXT("https://example.com/invite/aB3"), TEXT("https://user@example.com/channel/x"),
			 TEXT("http://[::1]:80/"), TEXT("https://b\u00FCcher.example/\u4E66"),
			 TEXT("https://example.com/$(reboot);'\"`|&<>"), TEXT("https://example.com/\U0001F600")})
	{
		EXPECT_EQ(Refusal(Address), "") << TCHAR_TO_UTF8(Address);
	}
}

TEST(FAddressOpener, RefusesEveryOtherScheme)
{
	for (const TCHAR* Address : {TEXT(""), TEXT("/etc/passwd"), TEXT("file:///etc/passwd"), TEXT("ftp://example.com/"),
			 TEXT("mailto:a@example.com"), TEXT("javascript:alert(1)//http://example.com"), TEXT("data:text/html,x"),
			 TEXT("--help"), TEXT("-https://example.com"), TEXT("example.com"), TEXT("//example.com"),
			 TEXT("http:example.com"), TEXT("http:/example.com"), TEXT("https//example.com"),
			 TEXT("httpss://example.com"), TEXT("xhttp://example.com"), TEXT(" https://example.com"),
			 TEXT("\nhttps://example.com"), TEXT("https ://example.com"), TEXT("http\u017F://example.com"),
			 TEXT("\uFEFFhttps://example.com"), TEXT("http:\\\\example.com"),
			 TEXT("x-scheme-handler/https://example.com")})
	{
		EXPECT_NE(Refusal(Address).find("only http:// and https://"), std::string::npos) << TCHAR_TO_UTF8(Address);
	}
}

TEST(FAddressOpener, RefusesAnAddressWithoutHost)
{
	for (const TCHAR* Address : {TEXT("http://"), TEXT("https:///"), TEXT("https:///etc/passwd"), TEXT("http://?a"),
			 TEXT("http://#a"), TEXT("http://:80/"), TEXT("http://user@/"), TEXT("http://user@:80"),
			 TEXT("http://\\host"), TEXT("http://user@/x@host")})
	{
		EXPECT_NE(Refusal(Address).find("no host"), std::string::npos) << TCHAR_TO_UTF8(Address);
	}
}

TEST(FAddressOpener, RefusesWhatNobodyCanSee)
{
	for (const int32 Unit :
		{0x00, 0x01, 0x07, 0x09, 0x0A, 0x0D, 0x1B, 0x1F, 0x20, 0x7F, 0x80, 0x85, 0x9F, 0xA0, 0xAD, 0x1680, 0x2003,
			0x200B, 0x200F, 0x2028, 0x2029, 0x202E, 0x2060, 0x2066, 0x3000, 0xD800, 0xDC00, 0xE000, 0xFEFF, 0xFFFF})
	{
		const TCHAR Character = static_cast<TCHAR>(Unit);
		const FString Inside = FString(TEXT("https://example.com/a")).AppendChar(Character) + TEXT("b");
		const FString AtTheEnd = FString(TEXT("https://example.com/a")).AppendChar(Character);
		EXPECT_NE(Refusal(Inside).find("can't be seen"), std::string::npos) << Unit;
		EXPECT_NE(Refusal(AtTheEnd).find("can't be seen"), std::string::npos) << Unit;
	}
}

RC_GTEST_PROP(FAddressOpener, AllowsNothingWithAnotherScheme, ())
{
	const std::string Scheme = *rc::gen::oneOf(rc::gen::arbitrary<std::string>(),
		rc::gen::container<std::string>(rc::gen::elementOf(std::string("htpsHTPS:/ -xf"))));
	const std::string Rest = *rc::gen::elementOf(std::vector<std::string>{
		"://example.com/", "//example.com", ":example.com", "http://example.com", "https://example.com/", ""});
	std::string Lower = Scheme + Rest;
	std::transform(Lower.begin(), Lower.end(), Lower.begin(),
		[](char Char) { return Char >= 'A' && Char <= 'Z' ? static_cast<char>(Char - 'A' + 'a') : Char; });
	const bool bWeb = Lower.compare(0, 7, "http://") == 0 || Lower.compare(0, 8, "https://") == 0;
	RC_CLASSIFY(bWeb);
	RC_ASSERT(bWeb || !FAddressOpener::IsAllowed((Scheme + Rest).c_str()));
}
