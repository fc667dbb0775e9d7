#include "screens/QifMappingForm.h"

#include "shell/theme/ElidedLabel.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"
#include "shell/theme/PlainWords.h"

#include <QComboBox>
#include <QFormLayout>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLabelWidth = 220; // pixels

// The wheel scrolls the list of boxes. Turned over one of them it would send an account's
// transactions somewhere else.
class MappingBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

// Without a buddy, so that an ampersand in an account's name stays one.
QLabel *makeLabel(const QString &name)
{
    auto *label = new ElidedLabel;
    label->setFullText(name);
    label->setToolTip(toolTipWords(name));
    label->setMinimumWidth(kLabelWidth);
    label->setMaximumWidth(kLabelWidth);
    return label;
}

QString newAccountWords(const QifSourceAccount &source)
{
    return source.isFileFallback ? source.displayName.section(u' ', 0, 0) : source.displayName;
}

// The first account of that name, whatever the case.
int itemOfName(const QComboBox &combo, const QList<Account> &accounts, const QString &name)
{
    for (const Account &account : accounts) {
        if (account.name.compare(name, Qt::CaseInsensitive) == 0)
            return combo.findData(account.id);
    }
    return 0;
}

} // namespace

QifMappingForm::QifMappingForm(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"qifSection"_s);
    auto *heading = new QLabel(tr("QIF source accounts:"));
    applyFontRole(heading, FontRole::Subheading);
    auto *note = new QLabel(
        tr("Choose where each Quicken account should be imported. Accounts mapped across the "
           "selected files will have their transfers linked automatically."));
    note->setWordWrap(true);
    note->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));

    auto *scrollArea = new QScrollArea;
    scrollArea->setObjectName(u"qifScrollArea"_s);
    scrollArea->setFocusPolicy(Qt::NoFocus); // the boxes in it take it
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollArea->setWidgetResizable(true);
    scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea->setWidget(buildRows());
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(heading);
    column->addWidget(note);
    column->addWidget(scrollArea, 1);
}

QWidget *QifMappingForm::buildRows()
{
    auto *rows = new QWidget;
    m_layout = new QFormLayout(rows);
    m_layout->setObjectName(u"qifMapRowsLayout"_s);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return rows;
}

void QifMappingForm::clear()
{
    m_rows.clear();
    while (m_layout->rowCount() > 0)
        m_layout->removeRow(0);
}

void QifMappingForm::showSources(const QList<QifSourceAccount> &sources,
                                 const QList<Account> &accounts)
{
    clear();
    for (const QifSourceAccount &source : sources) {
        auto *combo = new MappingBox;
        combo->setObjectName(u"mappingCombo%1"_s.arg(m_rows.size()));
        combo->setAccessibleName(source.displayName);
        // The longest name of an account must not widen the window.
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->addItem(tr("— Create new account \"%1\" —").arg(newAccountWords(source)),
                       QString(kCreateAccount));
        combo->addItem(tr("— Skip these transactions —"), QString(kSkipSource));
        for (const Account &account : accounts)
            combo->addItem(account.name, account.id);
        if (!source.isFileFallback)
            combo->setCurrentIndex(itemOfName(*combo, accounts, source.displayName));
        m_layout->addRow(makeLabel(source.displayName), combo);
        m_rows << QifMapRow{source.sourceKey, source.displayName, source.suggestedType, combo};
    }
}
