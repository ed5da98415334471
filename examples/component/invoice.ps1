# Builds an invoice through the object model and a reminder from a description:
#
#     powershell -File invoice.ps1 invoice.rtf [reminder.rtf]
#
# It needs Windows PowerShell 3 or later, or PowerShell 7, with as many bits as
# the component. On 64-bit Windows the 32-bit one is
# %SystemRoot%\SysWOW64\WindowsPowerShell\v1.0\powershell.exe.
#
# The tests do not run this example, because they have no PowerShell.

param(
    [Parameter(Mandatory = $true)] [string] $InvoicePath,
    [string] $ReminderPath
)
$ErrorActionPreference = 'Stop'

# A script does not see the enumerations of the type library.
$ePercent = 0
$eNoDefault = 0
$eRight = 3
$eJustified = 4
$eHair = 5
$eNormal = 20
$eThick = 30
$eLightBlue = 19

# Paragraph and character styles share numbers. The unused first style keeps
# "label", the only character style, from sharing the number of a style in use.
$styleSheet = @'
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
'@

$description = @'
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
'@

# The event must be handled while the method runs, which Register-ObjectEvent
# does not do, so a listener is compiled. It reads the error object of the
# thread, whose help context is the number, before PowerShell does anything
# else.
Add-Type -TypeDefinition @'
using System;
using System.Runtime.InteropServices;
using System.Runtime.InteropServices.ComTypes;

namespace InvoiceExample
{
    [ComImport, Guid("1811CD09-270D-4B00-A52C-4047F643EAB9")]
    [InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface IDriverEvents
    {
        [DispId(1)]
        void notifyError([MarshalAs(UnmanagedType.IDispatch)] object sender);
    }

    [ComImport, Guid("1CF2B120-547D-101B-8E65-08002B2BD119")]
    [InterfaceType(ComInterfaceType.InterfaceIsIUnknown)]
    public interface IErrorInfo
    {
        Guid GetGUID();
        [return: MarshalAs(UnmanagedType.BStr)] string GetSource();
        [return: MarshalAs(UnmanagedType.BStr)] string GetDescription();
        [return: MarshalAs(UnmanagedType.BStr)] string GetHelpFile();
        int GetHelpContext();
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.None)]
    public class DriverListener : IDriverEvents
    {
        private readonly Action<int, string, string> handler;

        public DriverListener(Action<int, string, string> handler)
        {
            this.handler = handler;
        }

        public void notifyError(object sender)
        {
            IErrorInfo info;
            if (GetErrorInfo(0, out info) == 0)
            {
                handler(info.GetHelpContext(), info.GetSource(), info.GetDescription());
            }
        }

        [DllImport("oleaut32.dll")]
        private static extern int GetErrorInfo(int reserved, out IErrorInfo info);
    }

    public sealed class DriverConnection : IDisposable
    {
        private readonly IConnectionPoint point;
        private readonly int cookie;

        public DriverConnection(object driver, Action<int, string, string> handler)
        {
            Guid events = typeof(IDriverEvents).GUID;
            ((IConnectionPointContainer)driver).FindConnectionPoint(ref events, out point);
            point.Advise(new DriverListener(handler), out cookie);
        }

        public void Dispose()
        {
            point.Unadvise(cookie);
        }
    }
}
'@

function Add-Row($document) {
    [void] $document.TableRows.AddTail()
    $document.TableRows.PeekTail()
}

# Adds a cell with one paragraph.
function Add-Cell($row, [string] $text, [string] $style, [int] $align = $eNoDefault) {
    [void] $row.TableCells.AddTail()
    $cell = $row.TableCells.PeekTail()
    $cell.Align = $align
    Add-Paragraph $cell $text $style
    $cell
}

function Add-Paragraph($cell, [string] $text, [string] $style) {
    [void] $cell.Paragraphs.AddTail()
    $paragraph = $cell.Paragraphs.PeekTail()
    $paragraph.Text = $text
    $paragraph.Style = $style
}

# Adding a cell makes all cells of the row equally wide, so set the widths after
# adding the last one. The last cell takes the rest of the row.
function Set-Widths($row, [int[]] $widths) {
    for ($i = 0; $i -lt $widths.Length - 1; ++$i) {
        $cell = $row.TableCells.Item($i + 1)
        $cell.Width($ePercent) = $widths[$i]
    }
}

# The text of a paragraph is RTF. These three characters must be escaped in
# plain text.
function Get-Escaped([string] $text) {
    $text.Replace('\', '\\').Replace('{', '\{').Replace('}', '\}')
}

function Get-Money([int] $pence) {
    '{0}.{1:00}' -f [Math]::Floor($pence / 100), ($pence % 100)
}

# Commit raises an error if it cannot replace a file, but not if it cannot write
# the new one.
function Confirm-Written([string] $path) {
    if (-not (Test-Path -LiteralPath $path -PathType Leaf)) {
        throw (New-Object System.IO.FileNotFoundException "$path was not written.")
    }
    Write-Host "$path was written."
}

# The component uses the current folder of the process, not that of PowerShell.
function Get-FullPath([string] $path) {
    $ExecutionContext.SessionState.Path.GetUnresolvedProviderPathFromPSPath($path)
}

function Get-ErrorText([int] $number, [string] $source, [string] $description) {
    # In the event, a run-time error has its plain number instead of an HRESULT.
    if ($number -gt 0 -and $number -lt 65536) {
        $number += 0x800A0000
    }
    'error 0x{0:X8} ({1}): {2}' -f $number, $source.Replace("`r`n", ', '), $description
}

function Get-ExceptionText([Exception] $exception) {
    $cause = $exception.GetBaseException()
    Get-ErrorText $cause.HResult $cause.Source $cause.Message
}

function New-Invoice([string] $path) {
    $document = New-Object -ComObject 'Quorvane.CRtfDoc'
    $document.PageWidth = 11906
    $document.PageHeight = 16838
    $document.LeftMargin = 1533
    $document.RightMargin = 1533
    $document.PageNumberStart = 1
    [void] $document.LoadStyleSheetFromMemmory($styleSheet)

    $title = Add-Row $document
    [void] (Add-Cell $title 'Harbour Light Candles' 'title')
    $facts = Add-Cell $title '<label=Invoice No.> 2025-0412' 'facts' $eRight
    Add-Paragraph $facts '<label=Date> 2 April 2025' 'facts'
    Set-Widths $title 60, 40
    $title.BottomBorder = $eThick

    # The key finds the row again. \'e9 is an e with an acute accent, as RTF
    # writes it.
    [void] $document.TableRows.AddTail('address')
    $address = $document.TableRows.Item('address')
    $receiver = Add-Cell $address "Mr Andr\'e9 Lindqvist" 'receiver'
    Add-Paragraph $receiver 'Mill Road 8' 'address'
    Add-Paragraph $receiver 'Castleton CT4 6QW' 'address'

    [void] (Add-Cell (Add-Row $document) 'We have delivered to you:' 'note')

    $heading = Add-Row $document
    [void] (Add-Cell $heading 'No.' 'column')
    [void] (Add-Cell $heading 'Article' 'column')
    [void] (Add-Cell $heading 'Quantity' 'column' $eRight)
    [void] (Add-Cell $heading 'Price' 'column' $eRight)
    [void] (Add-Cell $heading 'Amount' 'column' $eRight)
    Set-Widths $heading 12, 42, 14, 14, 18
    $heading.BackColor = $eLightBlue
    $heading.TopBorder = $eNormal
    $heading.BottomBorder = $eNormal

    $items = @(
        @{ Number = '1101'; Name = 'Pillar candle, ivory, 20 cm'; Quantity = 12; Pence = 480 },
        @{ Number = '1108'; Name = 'Tea lights {50 pieces}'; Quantity = 6; Pence = 1250 },
        @{ Number = '2040'; Name = 'Storm lantern, brass'; Quantity = 2; Pence = 3995 }
    )
    $total = 0
    foreach ($item in $items) {
        Add-Item $document $item
        $total += $item.Quantity * $item.Pence
    }

    $sum = Add-Row $document
    [void] $sum.TableCells.AddTail()
    $label = Add-Cell $sum 'Total in pounds' 'total'
    $amount = Add-Cell $sum (Get-Money $total) 'total' $eRight
    foreach ($cell in $label, $amount) {
        $cell.Style = 'sum'
        $cell.BottomBorder = $eThick
    }
    Set-Widths $sum 54, 28, 18

    $closing = 'Please pay the total by 2 May 2025 to account 12345678 at Castleton Bank ' +
        'and quote the number of the invoice. The goods remain our property until they are paid for.'
    [void] (Add-Cell (Add-Row $document) $closing 'note' $eJustified)

    [void] $document.Commit($path)
    Confirm-Written $path
}

function Add-Item($document, $item) {
    $row = Add-Row $document
    $number = Add-Cell $row (Get-Escaped $item.Number) 'normal'
    # A marked field: the accounting program finds the item number here, and
    # word processors do not show it.
    [void] $number.asMarkedField("item $($item.Number)")
    [void] (Add-Cell $row (Get-Escaped $item.Name) 'normal')
    [void] (Add-Cell $row ([string] $item.Quantity) 'normal' $eRight)
    [void] (Add-Cell $row (Get-Money $item.Pence) 'normal' $eRight)
    [void] (Add-Cell $row (Get-Money ($item.Quantity * $item.Pence)) 'normal' $eRight)
    Set-Widths $row 12, 42, 14, 14, 18
    $row.BottomBorder = $eHair
}

# The driver builds a document from a description. It reports errors in the
# description through its event, and raises errors of the call itself.
function New-Reminder([string] $path) {
    $driver = New-Object -ComObject 'Quorvane.CRtfDriver'
    [void] $driver.LoadStyleSheetFromMemmory($styleSheet)
    $driver.ErroneousInput = $true
    $connection = New-Object InvoiceExample.DriverConnection $driver, {
        param($number, $source, $text)
        Write-Host "in the description: $(Get-ErrorText $number $source $text)"
    }

    # Without a parenthesis the description is faulty.
    [void] $driver.ParseFromMemmory($description.Replace('Reminder)', 'Reminder'))
    Write-Host "rows built from the faulty description: $($driver.RtfObject.TableRows.Count)"

    try {
        [void] $driver.ParseFile('no-such-file.rtfspec')
    } catch {
        Write-Host (Get-ExceptionText $_.Exception)
    }

    [void] $driver.ParseFromMemmory($description)
    Write-Host "rows built from the correct description: $($driver.RtfObject.TableRows.Count)"
    $connection.Dispose()
    if ($path) {
        [void] $driver.Commit($path)
        Confirm-Written $path
    }
}

try {
    New-Invoice (Get-FullPath $InvoicePath)
    if ($ReminderPath) {
        New-Reminder (Get-FullPath $ReminderPath)
    } else {
        New-Reminder ''
    }
} catch {
    Write-Host (Get-ExceptionText $_.Exception)
    exit 1
}
