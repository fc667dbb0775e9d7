#pragma once

#include <QString>

namespace KestAccount {

// The words of the sharing dialog, which does not know what is shared. An empty field takes the
// dialog's own word, but for those marked with a star: they have none and must be given.
struct ShareWords
{
    QString windowTitle{}; // *
    QString heading{}; // *
    QString description{}; // *
    QString sharedWithTitle{};
    QString addTitle{};
    QString emptySharedText{};
    QString noGroupText{};
    QString allSharedText{};
    QString shareButtonText{};
    QString removeButtonText{};
    QString closeButtonText{};
    QString role{}; // * what a new member becomes: a word for the service, never shown
    QString removeConfirmTitle{};
    QString removeConfirmText{}; // %1: the person

    bool operator==(const ShareWords &) const = default;
};

ShareWords withDefaults(ShareWords words);

} // namespace KestAccount
