#include "screens/CategoriesScreen.h"

#include "core/state/AppState.h"
#include "data/CategoryRepository.h"
#include "screens/CategoryFormDialog.h"
#include "screens/CategoryTreeModel.h"
#include "shell/theme/FontRoles.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMargin = 16;
}

CategoriesScreen::CategoriesScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_model(new CategoryTreeModel(this))
    , m_proxy(new QSortFilterProxyModel(this))
{
    setObjectName(u"categoriesScreen"_s);
    build();
    m_reloadTimer.setSingleShot(true);
    connect(&m_reloadTimer, &QTimer::timeout, this, &CategoriesScreen::reloadTree);
    connect(m_appState->categories(), &CategoryRepository::categoriesChanged, this,
            [this] { m_reloadTimer.start(0); });
}

void CategoriesScreen::build()
{
    auto *heading = new QLabel(tr("Categories"), this);
    applyFontRole(heading, FontRole::Heading, QFont::Bold);
    m_searchEdit = new QLineEdit(this);
    m_searchEdit->setObjectName(u"searchEdit"_s);
    m_searchEdit->setPlaceholderText(tr("Search categories..."));
    m_searchEdit->setAccessibleName(m_searchEdit->placeholderText());
    m_searchEdit->setClearButtonEnabled(true);
    connect(m_searchEdit, &QLineEdit::textChanged, this, &CategoriesScreen::onSearch);
    auto *newButton = new QPushButton(tr("+ New Category"), this);
    newButton->setObjectName(u"newButton"_s);
    connect(newButton, &QPushButton::clicked, this, &CategoriesScreen::onCreateCategory);
    setUpTree();

    auto *row = new QHBoxLayout;
    row->addWidget(m_searchEdit, 1);
    row->addWidget(newButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(heading);
    column->addLayout(row);
    column->addWidget(m_tree, 1);
}

void CategoriesScreen::setUpTree()
{
    m_proxy->setSourceModel(m_model);
    m_proxy->setFilterKeyColumn(CategoryTreeModel::kName);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setRecursiveFilteringEnabled(true);
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortLocaleAware(true);
    m_proxy->setDynamicSortFilter(true);

    m_tree = new QTreeView(this);
    m_tree->setObjectName(u"categoryTree"_s);
    m_tree->setAccessibleName(tr("Categories"));
    m_tree->setModel(m_proxy);
    m_tree->setAlternatingRowColors(true);
    m_tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->setSortingEnabled(true);
    m_tree->sortByColumn(CategoryTreeModel::kName, Qt::AscendingOrder);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_tree->header()->setSectionResizeMode(CategoryTreeModel::kName, QHeaderView::Stretch);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &CategoriesScreen::onContextMenu);
}

void CategoriesScreen::reloadTree()
{
    m_reloadTimer.stop();
    QSet<QString> expanded;
    collectExpanded({}, expanded);
    const std::optional<Category> before = current();
    m_model->setCategories(m_appState->categories()->listActive());
    for (const QString &id : std::as_const(expanded))
        m_tree->expand(shownIndexOf(id));
    if (before)
        m_tree->setCurrentIndex(shownIndexOf(before->id));
}

void CategoriesScreen::collectExpanded(const QModelIndex &parent, QSet<QString> &ids) const
{
    for (int row = 0; row < m_proxy->rowCount(parent); ++row) {
        const QModelIndex index = m_proxy->index(row, 0, parent);
        if (m_tree->isExpanded(index))
            ids << m_model->categoryAt(m_proxy->mapToSource(index)).id;
        collectExpanded(index, ids);
    }
}

QModelIndex CategoriesScreen::shownIndexOf(const QString &id) const
{
    return m_proxy->mapFromSource(m_model->indexOf(id));
}

std::optional<Category> CategoriesScreen::current() const
{
    const QModelIndex index = m_proxy->mapToSource(m_tree->currentIndex());
    return index.isValid() ? std::optional<Category>(m_model->categoryAt(index)) : std::nullopt;
}

void CategoriesScreen::onSearch(const QString &text)
{
    m_proxy->setFilterFixedString(text);
    if (text.isEmpty())
        m_tree->collapseAll();
    else
        m_tree->expandAll();
}

void CategoriesScreen::onContextMenu(QPoint pos)
{
    QMenu menu(this);
    menu.setObjectName(u"categoryMenu"_s);
    menu.addAction(tr("&New Category"), this, &CategoriesScreen::onCreateCategory);
    const QModelIndex index = m_tree->indexAt(pos);
    if (index.isValid()) {
        m_tree->setCurrentIndex(index); // what the entries work on
        if (current()->parent_id.isEmpty()) // the tree never gets a third level
            menu.addAction(tr("Add &Subcategory"), this, &CategoriesScreen::onCreateSubcategory);
        menu.addSeparator();
        menu.addAction(tr("&Edit"), this, &CategoriesScreen::onEditCategory);
        menu.addAction(tr("&Delete"), this, &CategoriesScreen::onDeleteCategory);
    }
    menu.exec(m_tree->viewport()->mapToGlobal(pos));
}

void CategoriesScreen::onCreateCategory()
{
    createBelow({});
}

void CategoriesScreen::onCreateSubcategory()
{
    const std::optional<Category> parent = current();
    if (parent && parent->parent_id.isEmpty())
        createBelow(parent->id);
}

void CategoriesScreen::createBelow(const QString &parentId)
{
    CategoryFormDialog dialog(parentId, m_appState->categories()->listActive(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Category category = dialog.category();
    if (category.name.isEmpty())
        return;
    m_appState->categories()->insert(category);
    reloadTree();
    if (!parentId.isEmpty())
        m_tree->expand(shownIndexOf(parentId));
    m_tree->setCurrentIndex(shownIndexOf(category.id));
}

void CategoriesScreen::onEditCategory()
{
    const std::optional<Category> selected = current();
    if (!selected)
        return;
    const std::optional<Category> stored = m_appState->categories()->findById(selected->id);
    if (!stored)
        return;
    CategoryFormDialog dialog(*stored, m_appState->categories()->listActive(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Category category = dialog.category();
    if (category.name.isEmpty())
        return;
    m_appState->categories()->update(category);
    reloadTree();
}

// Its subcategories are not deleted with it: without a listed parent they stand at the top level.
void CategoriesScreen::onDeleteCategory()
{
    const std::optional<Category> selected = current();
    if (!selected || !confirmDelete(selected->name))
        return;
    m_appState->categories()->softDelete(selected->id);
    reloadTree();
}

bool CategoriesScreen::confirmDelete(const QString &name)
{
    QMessageBox question(
        QMessageBox::Question, tr("Delete Category"),
        tr("Delete \"%1\"? Transactions using this category will become uncategorized.").arg(name),
        QMessageBox::Yes | QMessageBox::No, this);
    question.setObjectName(u"deleteCategoryQuestion"_s);
    question.setTextFormat(Qt::PlainText); // a name is a person's words
    question.setDefaultButton(QMessageBox::No); // a stray Enter deletes nothing
    return question.exec() == QMessageBox::Yes;
}
