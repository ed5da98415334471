// The driver's event, connected to a function of the script.
var driver = new ActiveXObject("Quorvane.CRtfDriver");
var connector = new ActiveXObject("QuorvaneTests.EventConnector");
var description = "(doc\n(r\n(c\n(cb=Crimson)\n(ctb=thin)\n(p\n(pt=x)\np)\nc)\nr)\ndoc)";
var seen = 0;

connector.Connect(driver, function (sender) {
    WScript.Echo("event", sender === driver ? -1 : 0, connector.HelpContext, connector.Description);
    seen = seen + 1;
});
driver.ErroneousInput = true;
driver.ParseFromMemmory(description);
WScript.Echo("events", seen);
driver.Commit(WScript.Arguments(0));

driver.notifyError = false;
driver.ParseFromMemmory(description);
WScript.Echo("events", seen);
driver.notifyError = true;
connector.Disconnect();
driver.ParseFromMemmory(description);
WScript.Echo("events", seen);
WScript.Echo("done");
