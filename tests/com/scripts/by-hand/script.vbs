Option Explicit
' A document built by hand: cells with the styles of a sheet, one with a color of its own.
Dim document, row, cell, name, paragraph, line, styles
styles = "{name:dark;style-def:cell;format:navy-blue}{name:slate;style-def:cell;format:Slate-Blue}" & _
         "{name:sky;style-def:cell;format:sky-blue}{name:nil;style-def:cell;format:none}" & _
         "{name:odd;style-def:cell;format:crimson}{name:brick;style-def:cell;format:^vred-^fbrick}"

Set document = CreateObject("Quorvane.CRtfDoc")
document.LoadStyleSheetFromMemmory styles
WScript.Echo "styles", document.StyleSheetOk, document.getCellStyleBackColor("dark")

document.TableRows.AddTail "only"
Set row = document.TableRows("only")
For Each name In Array("dark", "slate", "sky", "nil", "odd", "nosuch", "brick")
  row.TableCells.AddTail name
  Set cell = row.TableCells(name)
  cell.Style = name
  cell.Paragraphs.AddTail
  cell.Paragraphs(1).Text = name
Next
row.TableCells.AddTail
With row.TableCells.PeekTail
  .BackColor = 34
  .Paragraphs.AddTail
  .Paragraphs.PeekTail.Text = "own colour"
End With

line = "cells"
For Each cell In row.TableCells
  For Each paragraph In cell.Paragraphs
    line = line & " [" & paragraph.Text & " " & cell.Width(0) & "]"
  Next
Next
WScript.Echo line
WScript.Echo "changed", document.Changed
document.Commit WScript.Arguments(0)
WScript.Echo "changed", document.Changed
WScript.Echo "dark is", row.TableCells(1).BackColor, row.TableCells(1).Paragraphs(1).ForeColor
WScript.Echo "same", row.TableCells(1).Parent Is row, row.Parent Is document
WScript.Echo "done"
