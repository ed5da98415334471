// The driver's event, connected by the host.
var description = "(doc\n(r\n(c\n(cb=Crimson)\n(ctb=thin)\n(p\n(pt=x)\np)\nc)\nr)\ndoc)";
var seen = 0;

function created_notifyError(sender) {
    WScript.Echo("created", sender === driver ? -1 : 0);
    seen = seen + 1;
}

function connected_notifyError(sender) {
    WScript.Echo("connected", sender === driver ? -1 : 0);
    seen = seen + 1;
}

var driver = WScript.CreateObject("Quorvane.CRtfDriver", "created_");
driver.ErroneousInput = true;
driver.ParseFromMemmory(description);
WScript.Echo("events", seen);
driver.Commit(WScript.Arguments(0));

WScript.DisconnectObject(driver);
WScript.ConnectObject(driver, "connected_");
driver.ParseFromMemmory(description);
WScript.Echo("events", seen);
WScript.DisconnectObject(driver);
driver.ParseFromMemmory(description);
WScript.Echo("events", seen);
WScript.Echo("done");
