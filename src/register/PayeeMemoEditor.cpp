#include "register/PayeeMemoEditor.h"

#include "register/RegisterLineEdit.h"
#include "shell/theme/FontRoles.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PayeeMemoEditor::PayeeMemoEditor(QWidget *parent)
    : QWidget(parent)
    , m_payeeEdit(new RegisterLineEdit(this))
    , m_memoEdit(new RegisterLineEdit(this))
{
    setObjectName(u"PayeeMemoEditor"_s);
    setAutoFillBackground(true); // the cell's own text must not show between the two lines
    m_payeeEdit->setObjectName(u"payeeEdit"_s);
    m_memoEdit->setObjectName(u"memoEdit"_s);
    m_memoEdit->setPlaceholderText(tr("Memo"));
    m_memoEdit->setProperty(kFontRoleProperty, FontRole::Caption);
    m_memoEdit->setProperty(kFontItalicProperty, true);
    reapplyFontRole(m_memoEdit);
    setFocusProxy(m_payeeEdit);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_payeeEdit);
    layout->addWidget(m_memoEdit);
}

PayeeMemoEditor *PayeeMemoEditor::around(QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (auto *editor = qobject_cast<PayeeMemoEditor *>(widget))
            return editor;
    }
    return nullptr;
}

QLineEdit *PayeeMemoEditor::memoEditBeside(QWidget *widget)
{
    const PayeeMemoEditor *editor = around(widget);
    return editor ? editor->memoEdit() : nullptr;
}
