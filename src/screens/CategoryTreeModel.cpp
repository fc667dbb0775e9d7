#include "screens/CategoryTreeModel.h"

#include <QColor>
#include <QFont>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {
const QColor kIncomeColor(0, 136, 0);
}

struct CategoryTreeModel::Node
{
    Category category{};
    Node *parent = nullptr;
    int row = 0; // among the parent's children
    std::vector<Node *> children{};

    bool isBelow(const Node *other) const
    {
        for (const Node *node = this; node; node = node->parent) {
            if (node == other)
                return true;
        }
        return false;
    }

    QString text(int column) const
    {
        switch (static_cast<Column>(column)) {
        case kName:
            return category.name;
        case kType:
            return categoryTypeToString(category.category_type);
        case kTaxCode:
            return category.is_tax_relevant ? category.tax_category : QString();
        case kColumnCount:
            break;
        }
        return {};
    }
};

CategoryTreeModel::CategoryTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Node>())
{
}

CategoryTreeModel::~CategoryTreeModel() = default;

void CategoryTreeModel::setCategories(const QList<Category> &categories)
{
    beginResetModel();
    m_nodes.clear();
    m_root->children.clear();
    QHash<QString, Node *> listed;
    for (const Category &category : categories) {
        m_nodes.push_back(std::make_unique<Node>());
        m_nodes.back()->category = category;
        listed.insert(category.id, m_nodes.back().get());
    }
    for (const std::unique_ptr<Node> &node : m_nodes) {
        Node *parent = listed.value(node->category.parent_id, m_root.get());
        // Parents in a circle, as two devices can make them, would hang on to each other unseen.
        attach(node.get(), parent->isBelow(node.get()) ? m_root.get() : parent);
    }
    endResetModel();
}

void CategoryTreeModel::attach(Node *node, Node *parent)
{
    node->parent = parent;
    node->row = static_cast<int>(parent->children.size());
    parent->children.push_back(node);
}

const CategoryTreeModel::Node *CategoryTreeModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<const Node *>(index.constInternalPointer()) : m_root.get();
}

Category CategoryTreeModel::categoryAt(const QModelIndex &index) const
{
    return nodeAt(index)->category;
}

QModelIndex CategoryTreeModel::indexOf(const QString &id) const
{
    if (id.isEmpty())
        return {};
    std::vector<const Node *> open(m_root->children.cbegin(), m_root->children.cend());
    while (!open.empty()) {
        const Node *node = open.back();
        open.pop_back();
        if (node->category.id == id)
            return createIndex(node->row, 0, node);
        open.insert(open.end(), node->children.cbegin(), node->children.cend());
    }
    return {};
}

QModelIndex CategoryTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, nodeAt(parent)->children.at(static_cast<std::size_t>(row)));
}

QModelIndex CategoryTreeModel::parent(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const Node *parent = nodeAt(index)->parent;
    return parent == m_root.get() ? QModelIndex() : createIndex(parent->row, 0, parent);
}

int CategoryTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->children.size());
}

int CategoryTreeModel::columnCount(const QModelIndex &) const
{
    return kColumnCount;
}

QVariant CategoryTreeModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Node *node = nodeAt(index);
    const int column = index.column();
    if (role == Qt::DisplayRole)
        return node->text(column);
    const bool income = node->category.category_type == CategoryType::Income;
    if (role == Qt::ForegroundRole && column == kType && income)
        return kIncomeColor;
    if (role == Qt::FontRole && column == kName && !node->children.empty()) {
        QFont bold;
        bold.setWeight(QFont::Bold);
        return bold;
    }
    return {};
}

QVariant CategoryTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractItemModel::headerData(section, orientation, role);
    switch (static_cast<Column>(section)) {
    case kName:
        return tr("Category");
    case kType:
        return tr("Type");
    case kTaxCode:
        return tr("Tax Code");
    case kColumnCount:
        break;
    }
    return {};
}
