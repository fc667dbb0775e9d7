# shellcheck shell=bash
# Categories of two levels are made, changed, looked for and deleted.

hobby='Hobby "%1" 😀'

chapter_categories() {
  press ctrl+4
  wait_for_window "Categories"
  picture categories
  add_categories
  edit_category
  delete_categories
  close_window "$main_title"
}

add_categories() {
  press Tab space
  wait_for_window "New Category"
  press Return # without a name
  wait_for_window "Categories"
  press space
  wait_for_window "New Category"
  type_text "$hobby"
  picture category-form
  press Return
  wait_for_window "Categories"
  wait_for_answer 57 "SELECT COUNT(*) FROM categories"
  press Tab Menu
  picture category-menu
  press s
  wait_for_window "New Subcategory"
  type_text "Lessons 100%1"
  press Tab i Tab space Tab
  type_text self_employment
  picture subcategory-form
  press Return
  wait_for_window "Categories"
  wait_for_answer 58 "SELECT COUNT(*) FROM categories"
  picture category-added
}

edit_category() {
  press Menu
  picture subcategory-menu
  press e
  wait_for_window "Edit Category"
  replace_text "Lessons given"
  press Return
  wait_for_window "Categories"
  wait_for_answer 1 "SELECT COUNT(*) FROM categories WHERE name = 'Lessons given'"
  expect_rows "the new categories" "
    SELECT c.name, c.category_type, ifnull(p.name, ''), c.is_tax_relevant, ifnull(c.tax_category, ''),
           $(fresh c)
    FROM categories c LEFT JOIN categories p ON p.id = c.parent_id
    WHERE c.sync_status = 'pending' ORDER BY c.name" <<ROWS
$hobby | expense |  | 0 |  | 1
Lessons given | income | $hobby | 1 | self_employment | 1
ROWS
}

# The parent alone, found by its child, and one that is in use.
delete_categories() {
  press shift+Tab shift+Tab
  type_text LESSONS
  picture category-search
  press Tab Tab ctrl+Home
  delete_category delete-category-question
  wait_for_answer 1 "SELECT COUNT(*) FROM categories WHERE deleted_at IS NOT NULL"
  press shift+Tab shift+Tab
  replace_text subscr
  press Tab Tab ctrl+Home
  delete_category
  wait_for_answer 2 "SELECT COUNT(*) FROM categories WHERE deleted_at IS NOT NULL"
  press shift+Tab shift+Tab ctrl+a BackSpace
  picture categories-deleted
  expect_rows "the deleted categories" "
    SELECT c.name, $(fresh c),
           (SELECT COUNT(*) FROM categories child
            WHERE child.parent_id = c.id AND child.deleted_at IS NULL),
           (SELECT COUNT(*) FROM transactions t WHERE t.category_id = c.id)
    FROM categories c WHERE c.deleted_at IS NOT NULL ORDER BY c.name" <<ROWS
$hobby | 1 | 1 | 0
Subscriptions | 1 | 0 | 2
ROWS
}

# delete_category [picture]: the current one.
delete_category() {
  press Menu d
  wait_for_window "Delete Category"
  [ -z "${1:-}" ] || picture "$1"
  press alt+y
  wait_for_window "Categories"
}
