#include "quorvane/compose/TableSetup.h"

namespace quorvane {

std::string_view standardTableStyles() {
    return R"(; quorvane 2
; The styles of a table.

{
  name: table-cell;
  style-def: paragraph;
  font: Arial;
  size: 9pt;
  space-before: 2pt;
  space-after: 2pt
}
{ name: table-heading; style-def: paragraph; based-on: table-cell; bold; color: #1f3a55 }
{ name: table-title; style-def: paragraph; based-on: table-cell; size: 15pt; color: #1f3a55; space-after: 6pt }
{ name: table-group; style-def: paragraph; based-on: table-cell; bold; size: 10pt; space-before: 8pt; color: #1f3a55 }
{ name: table-total; style-def: paragraph; based-on: table-cell; bold }

{ name: header; style-def: paragraph; based-on: table-cell; size: 8pt; color: #5a5a5a }
{ name: footer; style-def: paragraph; based-on: header }
)";
}

}  // namespace quorvane
