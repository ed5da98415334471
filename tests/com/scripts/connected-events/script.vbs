Option Explicit
' The driver's event, connected by the host.
Dim driver, description, seen
description = "(doc" & vbLf & "(r" & vbLf & "(c" & vbLf & "(cb=Crimson)" & vbLf & "(ctb=thin)" & vbLf & _
              "(p" & vbLf & "(pt=x)" & vbLf & "p)" & vbLf & "c)" & vbLf & "r)" & vbLf & "doc)"

Sub created_notifyError(Sender)
  WScript.Echo "created", Sender Is driver
  seen = seen + 1
End Sub

Sub connected_notifyError(Sender)
  WScript.Echo "connected", Sender Is driver
  seen = seen + 1
End Sub

Set driver = WScript.CreateObject("Quorvane.CRtfDriver", "created_")
driver.ErroneousInput = True
driver.ParseFromMemmory description
WScript.Echo "events", seen
driver.Commit WScript.Arguments(0)

WScript.DisconnectObject driver
WScript.ConnectObject driver, "connected_"
driver.ParseFromMemmory description
WScript.Echo "events", seen
WScript.DisconnectObject driver
driver.ParseFromMemmory description
WScript.Echo "events", seen
WScript.Echo "done"
