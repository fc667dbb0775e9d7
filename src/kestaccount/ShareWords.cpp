#include "kestaccount/ShareWords.h"

#include <QCoreApplication>

namespace KestAccount {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(KestAccount::ShareWords)
};

void fill(QString &word, const QString &defaultWord)
{
    if (word.isEmpty())
        word = defaultWord;
}

} // namespace

ShareWords withDefaults(ShareWords words)
{
    fill(words.sharedWithTitle, Words::tr("People with access"));
    fill(words.addTitle, Words::tr("Add people"));
    fill(words.emptySharedText, Words::tr("Not shared with anyone yet."));
    fill(words.noGroupText, Words::tr("You don't have a family group yet."));
    fill(words.allSharedText, Words::tr("All group members already have access"));
    fill(words.shareButtonText, Words::tr("Share"));
    fill(words.removeButtonText, Words::tr("Remove access"));
    fill(words.closeButtonText, Words::tr("Close"));
    fill(words.removeConfirmTitle, Words::tr("Remove access?"));
    fill(words.removeConfirmText, Words::tr("%1 will no longer have access. Continue?"));
    return words;
}

} // namespace KestAccount
