<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KestoDraw::Canvas</name>
    <message>
        <source>|Drag| to draw a rectangle.</source>
        <translation>|Ziehen|, um ein Rechteck zu zeichnen.</translation>
    </message>
    <message>
        <source>|Drag| to draw an ellipse.</source>
        <translation>|Ziehen|, um eine Ellipse zu zeichnen.</translation>
    </message>
    <message>
        <source>|Drag| to draw a closed path.</source>
        <translation>|Ziehen|, um einen geschlossenen Pfad zu zeichnen.</translation>
    </message>
    <message>
        <source>|Click| a shape to select it, |drag| a shape to move it.</source>
        <translation>Eine Form |anklicken|, um sie auszuwählen; eine Form |ziehen|, um sie zu verschieben.</translation>
    </message>
    <message>
        <source>%1|Drag| over the shape to give it a linear %2, or choose a kind in the type box.</source>
        <translation>%1Über die Form |ziehen|, um ihr eine lineare %2 zu geben, oder im Typfeld eine Art wählen.</translation>
    </message>
    <message>
        <source>transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Move Shape</source>
        <translation>Form verschieben</translation>
    </message>
    <message>
        <source>Add Path</source>
        <translation>Pfad hinzufügen</translation>
    </message>
    <message>
        <source>Add Ellipse</source>
        <translation>Ellipse hinzufügen</translation>
    </message>
    <message>
        <source>Add Rectangle</source>
        <translation>Rechteck hinzufügen</translation>
    </message>
    <message>
        <source>Drop Colour</source>
        <translation>Farbe ablegen</translation>
    </message>
    <message>
        <source>Painting the page...</source>
        <translation>Die Seite wird gezeichnet…</translation>
    </message>
</context>
<context>
    <name>KestoDraw::DocumentFile</name>
    <message>
        <source>it is not a JSON document (%1 at byte %2)</source>
        <translation>die Datei ist kein JSON-Dokument (%1 bei Byte %2)</translation>
    </message>
    <message>
        <source>it is not a kestodraw drawing</source>
        <translation>die Datei ist keine kestodraw-Zeichnung</translation>
    </message>
    <message>
        <source>it was saved by a newer kestodraw (format version %1; this one reads %2)</source>
        <translation>sie wurde mit einem neueren kestodraw gespeichert (Formatversion %1; dieses liest %2)</translation>
    </message>
    <message>
        <source>it has %1 shapes; a drawing holds at most %2</source>
        <translation>sie hat %1 Formen; eine Zeichnung hat höchstens %2</translation>
    </message>
</context>
<context>
    <name>KestoDraw::ExportOptionsDialog</name>
    <message>
        <source>PDF Options</source>
        <translation>PDF-Optionen</translation>
    </message>
    <message>
        <source>SVG Options</source>
        <translation>SVG-Optionen</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Page&apos;s longer side:</source>
        <translation>Längere Seitenkante:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Pictures of conical, plasma, bitmap and vector fills at:</source>
        <translation>Bilder konischer Füllungen, Plasma-, Bitmap- und Vektorfüllungen mit:</translation>
    </message>
    <message>
        <source>Pictures of conical, three- and four-colour and plasma fills at:</source>
        <translation>Bilder konischer Füllungen, Drei- und Vierfarbfüllungen und Plasmafüllungen mit:</translation>
    </message>
</context>
<context>
    <name>KestoDraw::FileRead</name>
    <message>
        <source>there is no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is a folder, not a file</source>
        <translation>das ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>it is not a regular file (a device, a pipe or a socket)</source>
        <translation>das ist keine gewöhnliche Datei (ein Gerät, eine Pipe oder ein Socket)</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>die Datei ist größer als %1 MB</translation>
    </message>
</context>
<context>
    <name>KestoDraw::FormatError</name>
    <message>
        <source>%1 should be a whole number</source>
        <translation>%1 sollte eine ganze Zahl sein</translation>
    </message>
    <message>
        <source>a shape</source>
        <translation>eine Form</translation>
    </message>
    <message>
        <source>a shape&apos;s kind should be rectangle, ellipse, path or curves, not &quot;%1&quot;</source>
        <translation>die Art einer Form sollte rectangle, ellipse, path oder curves sein, nicht „%1“</translation>
    </message>
    <message>
        <source>&quot;box&quot; should be four numbers: left, top, right, bottom</source>
        <translation>„box“ sollte vier Zahlen sein: links, oben, rechts, unten</translation>
    </message>
    <message>
        <source>a path should have 3 to %1 corners</source>
        <translation>ein Pfad sollte 3 bis %1 Ecken haben</translation>
    </message>
    <message>
        <source>a path corner should be [x, y]</source>
        <translation>eine Pfadecke sollte [x, y] sein</translation>
    </message>
    <message>
        <source>a path corner</source>
        <translation>eine Pfadecke</translation>
    </message>
    <message>
        <source>an outline should have 1 to %1 segments</source>
        <translation>ein Umriss sollte 1 bis %1 Segmente haben</translation>
    </message>
    <message>
        <source>a shape&apos;s &quot;fill&quot; is a transparency</source>
        <translation>„fill“ einer Form ist eine Transparenz</translation>
    </message>
    <message>
        <source>a shape&apos;s &quot;transparency&quot; is a fill</source>
        <translation>„transparency“ einer Form ist eine Füllung</translation>
    </message>
    <message>
        <source>&quot;page&quot; should be [width, height]</source>
        <translation>„page“ sollte [Breite, Höhe] sein</translation>
    </message>
    <message>
        <source>the page width</source>
        <translation>die Seitenbreite</translation>
    </message>
    <message>
        <source>the page height</source>
        <translation>die Seitenhöhe</translation>
    </message>
    <message>
        <source>%1 should be a point [x, y]</source>
        <translation>%1 sollte ein Punkt [x, y] sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; should be six numbers</source>
        <translation>„%1“ sollte sechs Zahlen sein</translation>
    </message>
    <message>
        <source>a stop</source>
        <translation>ein Verlaufspunkt</translation>
    </message>
    <message>
        <source>&quot;spline&quot; should be two numbers</source>
        <translation>„spline“ sollte zwei Zahlen sein</translation>
    </message>
    <message>
        <source>&quot;bitmap&quot; is %1 x %2 pixels; at most %3 a side are read</source>
        <translation>„bitmap“ hat %1 × %2 Pixel; gelesen werden höchstens %3 je Seite</translation>
    </message>
    <message>
        <source>&quot;bitmap&quot; is no PNG image that can be read (%1)</source>
        <translation>„bitmap“ ist kein lesbares PNG-Bild (%1)</translation>
    </message>
    <message>
        <source>a drawing&apos;s shape</source>
        <translation>eine Form einer Zeichnung</translation>
    </message>
    <message>
        <source>&quot;nodes&quot; should hold a colour for each of the %1 nodes</source>
        <translation>„nodes“ sollte für jeden der %1 Knoten eine Farbe enthalten</translation>
    </message>
    <message>
        <source>&quot;objectBox&quot; should be four numbers</source>
        <translation>„objectBox“ sollte vier Zahlen sein</translation>
    </message>
    <message>
        <source>fills are nested more than %1 deep</source>
        <translation>Füllungen sind tiefer als %1 verschachtelt</translation>
    </message>
    <message>
        <source>a fill</source>
        <translation>eine Füllung</translation>
    </message>
    <message>
        <source>there is no transparency of type %1</source>
        <translation>es gibt keine Transparenz der Art %1</translation>
    </message>
    <message>
        <source>there is no fill of type %1</source>
        <translation>es gibt keine Füllung der Art %1</translation>
    </message>
    <message>
        <source>a control point</source>
        <translation>ein Kontrollpunkt</translation>
    </message>
    <message>
        <source>this kind of fill has %1 control points, not %2</source>
        <translation>diese Füllungsart hat %1 Kontrollpunkte, nicht %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>this kind of fill takes %1 stops, not %2</source>
        <translation>diese Füllungsart nimmt %1 Verlaufspunkte, nicht %2</translation>
    </message>
    <message>
        <source>a path segment should be [&quot;M&quot;, x, y], [&quot;L&quot;, x, y], [&quot;C&quot;, x1, y1, x2, y2, x, y] or [&quot;Z&quot;]</source>
        <translation>ein Pfadsegment sollte [&quot;M&quot;, x, y], [&quot;L&quot;, x, y], [&quot;C&quot;, x1, y1, x2, y2, x, y] oder [&quot;Z&quot;] sein</translation>
    </message>
    <message>
        <source>a path point</source>
        <translation>ein Pfadpunkt</translation>
    </message>
    <message>
        <source>its pictures hold more than %1 pixels</source>
        <translation>ihre Bilder haben mehr als %1 Pixel</translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>eine Farbe</translation>
    </message>
    <message>
        <source>&quot;rgb&quot; should be a colour as #rrggbb</source>
        <translation>„rgb“ sollte eine Farbe als #rrggbb sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>%1 should be an object</source>
        <translation>%1 sollte ein Objekt sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; should be a list</source>
        <translation>„%1“ sollte eine Liste sein</translation>
    </message>
    <message>
        <source>%1 should be a number from %2 to %3</source>
        <translation>%1 sollte eine Zahl von %2 bis %3 sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; should be a whole number</source>
        <translation>„%1“ sollte eine ganze Zahl sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; should be true or false</source>
        <translation>„%1“ sollte true oder false sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; should be text</source>
        <translation>„%1“ sollte Text sein</translation>
    </message>
</context>
<context>
    <name>KestoDraw::MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save Drawing</source>
        <translation>Zeichnung speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Import SVG...</source>
        <translation>SVG &amp;importieren…</translation>
    </message>
    <message>
        <source>Import SVG</source>
        <translation>SVG importieren</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation>SVG-Zeichnungen (*.svg)</translation>
    </message>
    <message>
        <source>&amp;Export PNG...</source>
        <translation>Als &amp;PNG exportieren…</translation>
    </message>
    <message>
        <source>Export PNG</source>
        <translation>PNG exportieren</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <source>Export S&amp;VG...</source>
        <translation>Als S&amp;VG exportieren…</translation>
    </message>
    <message>
        <source>Export SVG</source>
        <translation>SVG exportieren</translation>
    </message>
    <message>
        <source>Export P&amp;DF...</source>
        <translation>Als P&amp;DF exportieren…</translation>
    </message>
    <message>
        <source>Export PDF</source>
        <translation>PDF exportieren</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Delete Shape</source>
        <translation>Form &amp;löschen</translation>
    </message>
    <message>
        <source>Edit &amp;Fill...</source>
        <translation>&amp;Füllung bearbeiten…</translation>
    </message>
    <message>
        <source>Edit &amp;Transparency...</source>
        <translation>&amp;Transparenz bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Fit Page</source>
        <translation>Ganze &amp;Seite</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>The fill tools edit the selection&apos;s fill</source>
        <translation>Die Füllwerkzeuge bearbeiten die Füllung der Auswahl</translation>
    </message>
    <message>
        <source>The fill tools edit the selection&apos;s transparency</source>
        <translation>Die Füllwerkzeuge bearbeiten die Transparenz der Auswahl</translation>
    </message>
    <message>
        <source>Fill Tool</source>
        <translation>Füllwerkzeug</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Edit Transparency</source>
        <translation>Transparenz bearbeiten</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>%1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Recover Drawing</source>
        <translation>Zeichnung wiederherstellen</translation>
    </message>
    <message>
        <source>The drawing kept when kestodraw stopped could not be read: %1</source>
        <translation>Die Zeichnung, die kestodraw beim Abbruch aufbewahrt hat, konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>%1 konnte nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the PDF library could not make the document</source>
        <translation>die PDF-Bibliothek konnte das Dokument nicht erzeugen</translation>
    </message>
    <message>
        <source>it is %1 MB; SVG files up to %2 MB are read</source>
        <translation>sie ist %1 MB groß; SVG-Dateien werden bis %2 MB gelesen</translation>
    </message>
    <message>
        <source>%1 could not be imported: %2</source>
        <translation>%1 konnte nicht importiert werden: %2</translation>
    </message>
    <message>
        <source>%1 holds what kestodraw does not draw, left out: %2.</source>
        <translation>%1 enthält, was kestodraw nicht zeichnet; ausgelassen: %2.</translation>
    </message>
    <message>
        <source>kestodraw</source>
        <translation>kestodraw</translation>
    </message>
    <message>
        <source>Save the changes to the drawing?</source>
        <translation>Die Änderungen an der Zeichnung speichern?</translation>
    </message>
    <message>
        <source>kestodraw drawings (*.kdraw)</source>
        <translation>kestodraw-Zeichnungen (*.kdraw)</translation>
    </message>
    <message>
        <source>Exporting %1...</source>
        <translation>%1 wird exportiert…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>the page&apos;s colour</source>
        <translation>die Farbe der Seite</translation>
    </message>
</context>
<context>
    <name>KestoDraw::Palette</name>
    <message>
        <source>Drag a colour onto a fill&apos;s line or handle; click one to recolour the current handle</source>
        <translation>Eine Farbe auf die Linie oder einen Griff einer Füllung ziehen; eine Farbe anklicken, um den aktuellen Griff umzufärben</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>%1% transparent</source>
        <translation>%1 % transparent</translation>
    </message>
</context>
<context>
    <name>KestoDraw::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source> units</source>
        <translation> Einheiten</translation>
    </message>
    <message>
        <source>Snap to grid:</source>
        <translation>Am Raster ausrichten:</translation>
    </message>
    <message>
        <source>Shift constrains angles to steps of:</source>
        <translation>Umschalt beschränkt Winkel auf Schritte von:</translation>
    </message>
</context>
<context>
    <name>KestoDraw::Shape</name>
    <message>
        <source>Rectangle: </source>
        <translation>Rechteck: </translation>
    </message>
    <message>
        <source>Ellipse: </source>
        <translation>Ellipse: </translation>
    </message>
    <message>
        <source>Path: </source>
        <translation>Pfad: </translation>
    </message>
</context>
<context>
    <name>KestoDraw::ToolHost</name>
    <message>
        <source>Delete Shape</source>
        <translation>Form löschen</translation>
    </message>
    <message>
        <source>Edit Transparency</source>
        <translation>Transparenz bearbeiten</translation>
    </message>
    <message>
        <source>Edit Fill</source>
        <translation>Füllung bearbeiten</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>KestoTool::SvgReader</name>
    <message>
        <source>the file is %1 MB; SVG files up to %2 MB are read</source>
        <translation>die Datei hat %1 MB; SVG-Dateien bis %2 MB werden gelesen</translation>
    </message>
    <message>
        <source>the file is not well-formed XML (%1 at byte %2)</source>
        <translation>die Datei ist kein wohlgeformtes XML (%1 bei Byte %2)</translation>
    </message>
    <message>
        <source>the file declares XML entities, which are not read</source>
        <translation>die Datei deklariert XML-Entitäten, die nicht gelesen werden</translation>
    </message>
    <message>
        <source>the file is XML but not SVG (its outermost element is &lt;%1&gt;)</source>
        <translation>die Datei ist XML, aber kein SVG (ihr äußerstes Element ist &lt;%1&gt;)</translation>
    </message>
    <message>
        <source>the page is %1 x %2 units; pages from 1 to %3 units a side are read</source>
        <translation>die Seite misst %1 × %2 Einheiten; gelesen werden Seiten von 1 bis %3 Einheiten je Seite</translation>
    </message>
    <message>
        <source>the file has more than %1 shapes</source>
        <translation>die Datei hat mehr als %1 Formen</translation>
    </message>
    <message>
        <source>a path has more than %1 segments</source>
        <translation>ein Pfad hat mehr als %1 Segmente</translation>
    </message>
    <message>
        <source>the file has more than %1 path segments</source>
        <translation>die Datei hat mehr als %1 Pfadsegmente</translation>
    </message>
    <message>
        <source>more</source>
        <translation>weiteres</translation>
    </message>
    <message>
        <source>attribute %1 &quot;%2&quot;</source>
        <translation>Attribut %1 „%2“</translation>
    </message>
    <message>
        <source>gradient stops past %1</source>
        <translation>Verlaufspunkte über %1 hinaus</translation>
    </message>
    <message>
        <source>viewBox &quot;%1&quot;</source>
        <translation>viewBox „%1“</translation>
    </message>
    <message>
        <source>fills with more stops than a fill takes</source>
        <translation>Füllungen mit mehr Verlaufspunkten, als eine Füllung fasst</translation>
    </message>
    <message>
        <source>groups nested deeper than %1</source>
        <translation>Gruppen, die tiefer als %1 verschachtelt sind</translation>
    </message>
    <message>
        <source>&lt;%1&gt;</source>
        <translation>&lt;%1&gt;</translation>
    </message>
    <message>
        <source>transform &quot;%1&quot;</source>
        <translation>transform „%1“</translation>
    </message>
    <message>
        <source>stroke</source>
        <translation>Konturen</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>fill-rule evenodd (read as nonzero)</source>
        <translation>fill-rule evenodd (als nonzero gelesen)</translation>
    </message>
    <message>
        <source>masks other than one gradient or colour</source>
        <translation>Masken außer einem Verlauf oder einer Farbe</translation>
    </message>
    <message>
        <source>shapes outside the coordinate range</source>
        <translation>Formen außerhalb des Koordinatenbereichs</translation>
    </message>
    <message>
        <source>&lt;%1&gt; paint</source>
        <translation>&lt;%1&gt; als Füllung</translation>
    </message>
    <message>
        <source>paint url(#%1)</source>
        <translation>Füllung url(#%1)</translation>
    </message>
    <message>
        <source>fill &quot;%1&quot;</source>
        <translation>fill „%1“</translation>
    </message>
    <message>
        <source>spreadMethod %1 (read as pad)</source>
        <translation>spreadMethod %1 (als pad gelesen)</translation>
    </message>
    <message>
        <source>gradientTransform &quot;%1&quot;</source>
        <translation>gradientTransform „%1“</translation>
    </message>
    <message>
        <source>radial gradients&apos; focal points (read as centred)</source>
        <translation>Brennpunkte radialer Verläufe (als mittig gelesen)</translation>
    </message>
    <message>
        <source>clip-path (the clipped shapes are read whole)</source>
        <translation>clip-path (die beschnittenen Formen werden ganz gelesen)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Recover Drawing</source>
        <translation>Zeichnung wiederherstellen</translation>
    </message>
    <message>
        <source>kestodraw stopped without closing last time. Open the drawing as it was a minute or less before?</source>
        <translation>kestodraw wurde beim letzten Mal nicht ordnungsgemäß beendet. Die Zeichnung so öffnen, wie sie höchstens eine Minute vorher war?</translation>
    </message>
</context>
</TS>
