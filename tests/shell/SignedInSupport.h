#pragma once

#include "support/FakeHttpService.h"

class AppState;

inline const QString kPulled = QStringLiteral("GET /pursewell/v1/sync/pull");

// Before the state is made: its services are this one, all under their usual paths.
void pointServicesAt(const FakeHttpService &service);

QByteArray freshTokens(); // what a refresh answers
void storeTokens(int secondsToLive); // as a sign-in of an earlier run left them
void forgetStoredTokens();

// As if the user came back from the browser just now.
void signIn(AppState &state);
