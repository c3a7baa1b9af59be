// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <sys/types.h>

/** An X server of its own, which nobody sees: Xvfb with a screen of 1920 × 1080. */
class FXServer
{
public:
	FXServer();
	FXServer(const FXServer&) = delete;
	FXServer& operator=(const FXServer&) = delete;
	~FXServer();

	/** As DISPLAY wants it; empty if the server could not be started. */
	const std::string& GetDisplay() const { return Display; }

private:
	pid_t Process = -1;
	std::string Display;
};
