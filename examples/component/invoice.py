"""Builds an invoice through the object model and a reminder from a description:

    python invoice.py invoice.rtf [reminder.rtf]

It needs Windows, pywin32, the registered component with its type library, and a Python with as many
bits as the component (py -3-32 for the 32-bit one).

The tests do not run this example, because they have no Python for Windows.
"""

import ctypes
import os
import sys

import pythoncom
import win32com.client
from win32com.client import constants, gencache

# Paragraph and character styles share numbers. The unused first style keeps "label", the only
# character style, from sharing the number of a style in use.
STYLE_SHEET = r"""
{ name: reserved; style-def: s; format: \f0\fs20\cf3 }
{ name: normal; style-def: s; format: \f0\fs20\cf3\sb60\sa60 }
{ name: title; style-def: s; format: \f9\fs44\cf24\sa120 }
{ name: facts; style-def: s; format: \f0\fs20\cf3\sb60 }
{ name: receiver; style-def: s; format: \f0\fs22\cf3\sb700 }
{ name: address; style-def: s; format: \f0\fs22\cf3 }
{ name: column; style-def: s; format: \f0\fs18\b\cf24\sb60\sa60 }
{ name: total; style-def: s; format: \f0\fs22\b\cf24\sb80\sa80 }
{ name: note; style-def: s; format: \f0\fs20\cf3\sb600\sa160 }
{ name: label; style-def: cs; format: \cf9 }
{ name: sum; style-def: cell; format: light-yellow }
"""

DESCRIPTION = r"""
(doc
(paper-width=11906)
(paper-height=16838)
(left-margin=1533)
(right-margin=1533)
(page-number-start=1)
(row
(row-bottom-border=thick)
(cell
(para
(para-text=Reminder)
(para-style=title)
para)
cell)
row)
(row
(cell
(para
(para-text=Our invoice of 2 April 2025 is still open.)
(para-style=note)
para)
cell)
row)
(row
(row-backcolor=light-yellow)
(cell
(cell-width=75)
(para
(para-text=<label=Invoice No.> 2025-0412)
(para-style=total)
para)
cell)
(cell
(cell-alignment=right)
(para
(para-text=212.50)
(para-style=total)
para)
cell)
row)
doc)
"""

ITEMS = [
    ("1101", "Pillar candle, ivory, 20 cm", 12, 480),
    ("1108", "Tea lights {50 pieces}", 6, 1250),
    ("2040", "Storm lantern, brass", 2, 3995),
]


def make_invoice(path):
    # EnsureDispatch reads the type library: the constants are there from now on.
    document = gencache.EnsureDispatch("Quorvane.CRtfDoc")
    document.PageWidth = 11906
    document.PageHeight = 16838
    document.LeftMargin = 1533
    document.RightMargin = 1533
    document.PageNumberStart = 1
    document.LoadStyleSheetFromMemmory(STYLE_SHEET)

    title = add_row(document)
    add_cell(title, "Harbour Light Candles", "title")
    facts = add_cell(title, "<label=Invoice No.> 2025-0412", "facts", constants.eRight)
    add_paragraph(facts, "<label=Date> 2 April 2025", "facts")
    set_widths(title, [60, 40])
    title.BottomBorder = constants.eThick

    # The key finds the row again. \'e9 is an e with an acute accent, as RTF writes it.
    document.TableRows.AddTail("address")
    address = document.TableRows.Item("address")
    receiver = add_cell(address, r"Mr Andr\'e9 Lindqvist", "receiver")
    add_paragraph(receiver, "Mill Road 8", "address")
    add_paragraph(receiver, "Castleton CT4 6QW", "address")

    add_cell(add_row(document), "We have delivered to you:", "note")

    heading = add_row(document)
    add_cell(heading, "No.", "column")
    add_cell(heading, "Article", "column")
    add_cell(heading, "Quantity", "column", constants.eRight)
    add_cell(heading, "Price", "column", constants.eRight)
    add_cell(heading, "Amount", "column", constants.eRight)
    set_widths(heading, [12, 42, 14, 14, 18])
    heading.BackColor = constants.eLightBlue
    heading.TopBorder = constants.eNormal
    heading.BottomBorder = constants.eNormal

    total = sum(add_item(document, *item) for item in ITEMS)

    last = add_row(document)
    last.TableCells.AddTail()
    label = add_cell(last, "Total in pounds", "total")
    amount = add_cell(last, money(total), "total", constants.eRight)
    for cell in (label, amount):
        cell.Style = "sum"
        cell.BottomBorder = constants.eThick
    set_widths(last, [54, 28, 18])

    add_cell(
        add_row(document),
        "Please pay the total by 2 May 2025 to account 12345678 at Castleton Bank and quote the "
        "number of the invoice. The goods remain our property until they are paid for.",
        "note",
        constants.eJustified,
    )

    document.Commit(path)
    check_written(path)


def add_item(document, number, name, quantity, pence):
    """Returns the amount in pence."""
    amount = quantity * pence
    row = add_row(document)
    cell = add_cell(row, escaped(number), "normal")
    # A marked field: the accounting program finds the item number here, and word processors do not
    # show it.
    cell.asMarkedField("item " + number)
    add_cell(row, escaped(name), "normal")
    add_cell(row, str(quantity), "normal", constants.eRight)
    add_cell(row, money(pence), "normal", constants.eRight)
    add_cell(row, money(amount), "normal", constants.eRight)
    set_widths(row, [12, 42, 14, 14, 18])
    row.BottomBorder = constants.eHair
    return amount


class DriverEvents:
    """Listens to a driver: "On" and the name of the event."""

    def OnnotifyError(self, Sender):
        print("in the description: " + error_text(*take_error_object()))


def make_reminder(path):
    """The driver builds a document from a description. It reports errors in the description through
    its event, and raises errors of the call itself."""
    driver = gencache.EnsureDispatch("Quorvane.CRtfDriver")
    driver.LoadStyleSheetFromMemmory(STYLE_SHEET)
    driver.ErroneousInput = True
    events = win32com.client.WithEvents(driver, DriverEvents)

    # Without a parenthesis the description is faulty.
    driver.ParseFromMemmory(DESCRIPTION.replace("Reminder)", "Reminder"))
    print(f"rows built from the faulty description: {driver.RtfObject.TableRows.Count}")

    try:
        driver.ParseFile("no-such-file.rtfspec")
    except pythoncom.com_error as error:
        print(error_text(*details_of(error)))

    driver.ParseFromMemmory(DESCRIPTION)
    print(f"rows built from the correct description: {driver.RtfObject.TableRows.Count}")
    # Driver and listener hold each other until the connection ends.
    events.close()
    if path:
        driver.Commit(path)
        check_written(path)


def add_row(document):
    document.TableRows.AddTail()
    return document.TableRows.PeekTail()


def add_cell(row, text, style, align=None):
    """Adds a cell with one paragraph."""
    row.TableCells.AddTail()
    cell = row.TableCells.PeekTail()
    cell.Align = constants.eNoDefault if align is None else align
    add_paragraph(cell, text, style)
    return cell


def add_paragraph(cell, text, style):
    cell.Paragraphs.AddTail()
    paragraph = cell.Paragraphs.PeekTail()
    paragraph.Text = text
    paragraph.Style = style


def set_widths(row, widths):
    """Adding a cell makes all cells of the row equally wide, so set the widths after adding the last
    one. The last cell takes the rest of the row. Python has no properties with parameters: the
    method SetWidth sets Width."""
    for position, width in enumerate(widths[:-1], start=1):
        row.TableCells.Item(position).SetWidth(constants.ePercent, width)


def escaped(text):
    """The text of a paragraph is RTF. These three characters must be escaped in plain text."""
    return text.replace("\\", "\\\\").replace("{", "\\{").replace("}", "\\}")


def money(pence):
    return f"{pence // 100}.{pence % 100:02}"


def check_written(path):
    """Commit raises an error if it cannot replace a file, but not if it cannot write the new one."""
    if not os.path.isfile(path):
        raise FileNotFoundError(f"{path} was not written.")
    print(f"{path} was written.")


def details_of(error):
    """Number, source and description of a COM error."""
    if error.excepinfo:
        _, source, description, _, _, number = error.excepinfo
        return number, source or "", description or ""
    return error.hresult, "", error.strerror


def take_error_object():
    """Number, source and description of the error that an event handler finds in the error object of
    the thread, whose help context is the number. pywin32 has no access to it. The numbers below are
    the positions of the methods in the interface IErrorInfo."""
    info = ctypes.c_void_p()
    if ctypes.oledll.oleaut32.GetErrorInfo(0, ctypes.byref(info)) != 0:
        return 0, "", "no error object"
    number = ctypes.c_long()
    try:
        get_help_context = ctypes.WINFUNCTYPE(ctypes.HRESULT, ctypes.POINTER(ctypes.c_long))(
            7, "GetHelpContext"
        )
        get_help_context(info, ctypes.byref(number))
        return number.value, text_of(info, 4, "GetSource"), text_of(info, 5, "GetDescription")
    finally:
        ctypes.WINFUNCTYPE(ctypes.c_ulong)(2, "Release")(info)


def text_of(info, place, name):
    text = ctypes.c_void_p()
    method = ctypes.WINFUNCTYPE(ctypes.HRESULT, ctypes.POINTER(ctypes.c_void_p))(place, name)
    method(info, ctypes.byref(text))
    try:
        return ctypes.wstring_at(text.value) if text.value else ""
    finally:
        ctypes.windll.oleaut32.SysFreeString(text)


def error_text(number, source, description):
    # In the event, a run-time error has its plain number instead of an HRESULT.
    result = 0x800A0000 + number if 0 < number < 65536 else number & 0xFFFFFFFF
    source = source.replace("\r\n", ", ")
    return f"error 0x{result:08X} ({source}): {description}"


def main(arguments):
    if len(arguments) < 2:
        print("usage: python invoice.py INVOICE [REMINDER]")
        return 2
    try:
        make_invoice(arguments[1])
        make_reminder(arguments[2] if len(arguments) > 2 else "")
        return 0
    except pythoncom.com_error as error:
        print(error_text(*details_of(error)))
    except FileNotFoundError as error:
        print(error)
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv))
