Option Explicit
' The driver's event, connected to an object of the script.
Dim driver, connector, description, seen
Set driver = CreateObject("Quorvane.CRtfDriver")
Set connector = CreateObject("QuorvaneTests.EventConnector")
description = "(doc" & vbLf & "(r" & vbLf & "(c" & vbLf & "(cb=Crimson)" & vbLf & "(ctb=thin)" & vbLf & _
              "(p" & vbLf & "(pt=x)" & vbLf & "p)" & vbLf & "c)" & vbLf & "r)" & vbLf & "doc)"

' Its default member, since Wine's engine does not report the names of a class's members.
Class Handler
  Public Default Sub notifyError(Sender)
    WScript.Echo "event", Sender Is driver, connector.HelpContext, connector.Description
    seen = seen + 1
  End Sub
End Class

connector.Connect driver, New Handler
driver.ErroneousInput = True
driver.ParseFromMemmory description
WScript.Echo "events", seen
driver.Commit WScript.Arguments(0)

driver.notifyError = False
driver.ParseFromMemmory description
WScript.Echo "events", seen
driver.notifyError = True
connector.Disconnect
driver.ParseFromMemmory description
WScript.Echo "events", seen
WScript.Echo "done"
