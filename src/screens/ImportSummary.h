#pragma once

class QString;
struct ImportResult;

QString importSummary(const ImportResult &result); // a few lines for a person
