# Makes an order form and a price list with Quorvane.Document:
#
#     powershell -File document.ps1 order.rtf prices.rtf
#
# It needs Windows PowerShell 3 or later, or PowerShell 7, with as many bits as
# the component. On 64-bit Windows the 32-bit one is
# %SystemRoot%\SysWOW64\WindowsPowerShell\v1.0\powershell.exe.
#
# The tests do not run this example, because they have no PowerShell.

param(
    [Parameter(Mandatory = $true)] [string] $OrderPath,
    [Parameter(Mandatory = $true)] [string] $PricesPath
)
$ErrorActionPreference = 'Stop'

$styleSheet = @'
{ name: normal; style-def: s; format: \f0\fs20\sb60\sa60 }
{ name: column; style-def: s; format: \f0\fs18\b\sb60\sa60 }
{ name: total; style-def: s; format: \f0\fs22\b\sb80\sa80 }
'@

$items = @(
    @('1101', 'Pillar candle, ivory, 20 cm', 12, '57.60'),
    @('1108', 'Tea lights {50 pieces}', 6, '75.00'),
    @('2040', 'Storm lantern, brass', 2, '79.90')
)

# The component uses the current folder of the process, not that of PowerShell.
function Get-FullPath([string] $path) {
    $ExecutionContext.SessionState.Path.GetUnresolvedProviderPathFromPSPath($path)
}

function Get-ErrorText([Exception] $exception) {
    $cause = $exception.GetBaseException()
    'error 0x{0:X8} ({1}): {2}' -f $cause.HResult, $cause.Source, $cause.Message
}

function New-Order([string] $path) {
    $document = New-Object -ComObject 'Quorvane.Document'
    $document.StyleSheet = $styleSheet
    $document.Columns = '15 45 15 25'
    $document.Header = 'Harbour Light Candles||Order 4711'
    $document.Footer = '||{page} / {pages}'

    $heading = $document.AddHeading(@('No.', 'Article', 'Quantity', 'Amount'), 'column')
    $heading.BackColor = '#dce6f1'
    foreach ($item in $items) {
        $row = $document.AddRow($item, 'normal')
        $row.BottomBorder = 'hair'
        $row.Cells.Item(3).Align = 'right'
        $row.Cells.Item(4).Align = 'right'
    }
    $total = $document.AddRow(@('Total in pounds', '212.50'), 'total')
    $total.Cells.Item(1).Span = 3
    $total.Cells.Item(2).Align = 'right'

    $document.Save($path)
    Write-Host "$path was written."
}

# A description that is refused changes nothing, and its diagnostics say why.
function Show-WhatIsWrong {
    $document = New-Object -ComObject 'Quorvane.Document'
    try {
        $document.Render(@('; quorvane 2', '(doc', '(page=a44)', '(row', 'row)', 'doc)') -join "`n")
    } catch {
        Write-Host (Get-ErrorText $_.Exception)
    }
    foreach ($diagnostic in $document.Diagnostics) {
        Write-Host "line $($diagnostic.Line): $($diagnostic.Severity) $($diagnostic.Identifier)"
    }
}

function New-Prices([string] $path) {
    $document = New-Object -ComObject 'Quorvane.Document'
    $document.Table(@('Article,Price', 'Pillar candle,4.80', 'Tea lights,12.50') -join "`n",
        'Article:70%,Price:Price in pounds:30%', 'Prices')
    $document.Save($path)
    Write-Host "$path was written."
}

try {
    New-Order (Get-FullPath $OrderPath)
    Show-WhatIsWrong
    New-Prices (Get-FullPath $PricesPath)
} catch {
    Write-Host (Get-ErrorText $_.Exception)
    exit 1
}
