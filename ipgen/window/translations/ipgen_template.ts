<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a project for a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a project folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save what an earlier failure kept from being saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the project and look at its files again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Instance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create an instance of the IP chosen in the catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;onfigure …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the instance in its IP&apos;s dialog (or Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a copy under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the instance another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;heck</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the IP check the selected instances, without saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the files of the selected instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generate &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the files of all instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generate with &amp;netlist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the files and run the netlist generation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the selected instances; undo brings them back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cop&amp;y command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the command line that generates the selected instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open out&amp;put folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the generated files in the file manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find an IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the table of instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All keys of the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MapTexts</name>
    <message>
        <source>%1 Gbps from %2 at %3 MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lane %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only one instance can have it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>used in different ways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reference pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>multiplexer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLL of the quad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLL of the lane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>free</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>%1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 differs from what would be generated now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>looking …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP not on offer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>configured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>generated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>no divider setting gives these rates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>oscillator MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rate Gbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error ppm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rate margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>word clock MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>user clock MHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lanes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLLs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>references</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line rate, transmit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line rate, receive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>problem</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>IP generator</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::CataloguePane</name>
    <message>
        <source>The IP failed when asked about the device: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its description excludes the device %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not for %1. It supports: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create &amp;instance …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type part of an IP&apos;s name, category or summary (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search IPs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The IPs on offer; Enter creates an instance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the chosen IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create an instance of the chosen IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the IP&apos;s dialog for a new instance (Ctrl+I)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open or make a project first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 (%3)
%4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not for this device)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not be loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an IP to read about it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::FilesPane</name>
    <message>
        <source>&amp;Changes since the generation before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generated files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files of the chosen instance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the changes since the generation before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what the last generation changed instead of the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the files in the file manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an instance to see its files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is generated for %1 yet (F8).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 MB of %2 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No generation has changed this file yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>− before, + now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No difference</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::InstanceModel</name>
    <message>
        <source>%1 G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TX %1 G, RX %2 G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TX %1 G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RX %1 G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lanes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::InstancePane</name>
    <message>
        <source>Filter the instances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only instances with this text in a column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instances of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This project has no instances yet.
Choose an IP in the catalogue and press “Create instance” (Ctrl+I).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Instances&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::LogPane</name>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was done, with the command lines that do the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you do in the window stands here as command lines.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::MainWindow</name>
    <message>
        <source>IP generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Views of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quad map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins that could not be loaded: %1. The catalogue says why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No IP plug-in was found. Install one, or start with --plugin-dir DIR.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 — IP generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This project is open in %1 too. Both see each other&apos;s changes; the same instance changed in both is refused, not overwritten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instances: %1, selected: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo the last change of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do the undone change again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recen&amp;t projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this view of the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours of the window; System takes effect at the next start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a project folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an IP in the catalogue first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is an instance of this name already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New instance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the instance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the copy of %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds the same resources and writes to the same folder as %2 until you configure it otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New name of %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passed the check: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed the check: %1 of %2. The state&apos;s tooltip says why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generated: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled. Generated: %1 of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Netlist generation of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generated with netlist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled; what stood before is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed %1. Ctrl+Z brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is generated yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file manager answered. The path is on the clipboard: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;IP generator %1&lt;/h3&gt;&lt;p&gt;Configures and generates FPGA IPs from plug-ins. The same program on the command line: &lt;tt&gt;ipgen --help&lt;/tt&gt;.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::MapPane</name>
    <message>
        <source>Quad map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free resources and conflicts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free: %1 lanes, %2 quad PLLs, %3 multiplexers, %4 reference pins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>⚠ Conflicts: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::MapView</name>
    <message>
        <source>Quad map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A drawing; the table of resources says the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quad %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Conflict: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::NewProjectDialog</name>
    <message>
        <source>class %1, quads: %2, lanes: %3, clock inputs: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder is made when it is missing; the project file goes into it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device that the project is for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>/project%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for the project folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the project a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a project in this folder already; open it instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device database is empty.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this notice (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::ResourceTable</name>
    <message>
        <source>Resources of the device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter opens the instance that holds the resource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Held by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::SummaryPane</name>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One instance chosen: what it runs at; two: what differs between them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose one instance to see what it runs at, or two to compare.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (-) and %2 (+)

</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::ToolRun</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
%2 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::WelcomePage</name>
    <message>
        <source>&amp;New project …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open project …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recent projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a project for a device (Ctrl+N)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a project folder (Ctrl+O)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter opens the project, Delete takes it off the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;ol&gt;&lt;li&gt;Make a project for your device, or open one.&lt;/li&gt;&lt;li&gt;Find an IP by part of its name and create an instance.&lt;/li&gt;&lt;li&gt;See on the quad map what each instance holds.&lt;/li&gt;&lt;li&gt;Generate, and read the files.&lt;/li&gt;&lt;/ol&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take off the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no project in %1 any more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Window::Workbench</name>
    <message>
        <source>rename %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the IP threw an exception: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is an instance of this name already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>create %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>configure %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>duplicate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove instances (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
