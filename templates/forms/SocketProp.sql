-- The link to the control centre, for maintenance. "Default" stands for this machine and the usual port.

CREATE TABLE SocketProp (
  Name        TEXT(60) NOT NULL COLLATE NOCASE,
  "Left"      INTEGER,
  Top         INTEGER,
  Width       INTEGER,
  Height      INTEGER,
  Value       TEXT,
  Visible     BOOLEAN DEFAULT -1,
  Tag         TEXT(20),
  CapEnglish  TEXT,
  TipEnglish  TEXT(255),
  HelpEnglish TEXT
);
CREATE UNIQUE INDEX SocketProp_NameIndex ON SocketProp(Name COLLATE NOCASE);

INSERT INTO SocketProp(Name, "Left", Top, Width, Height, Value, Visible, Tag, CapEnglish,
                      TipEnglish, HelpEnglish) VALUES
  -- the form
  ('Me',             1500,  1500,  6300,  3330, NULL,  -1, 'C',  'Client Properties',
     NULL, 'The connection to the control centre. Closing the window only hides it.'),
  -- where to connect to
  ('Labels(0)',       180,   255,  1500,   270, NULL,  -1, NULL, 'Remote host', NULL, NULL),
  ('RemoteHost',     1800,   180,  4320,   420, NULL,  -1, NULL, 'Default',
     'Name or address of the control centre', '"Default" is this machine.'),
  ('Labels(1)',       180,   825,  1500,   270, NULL,  -1, NULL, 'Remote port', NULL, NULL),
  ('RemotePort',     1800,   750,  4320,   420, NULL,  -1, NULL, 'Default',
     'Port of the control centre', '"Default" is the port that the control centre listens on as delivered.'),
  -- what the connection is up to
  ('Labels(2)',       180,  1395,  1500,   270, NULL,  -1, NULL, 'State', NULL, NULL),
  ('txtState',       1800,  1320,  4320,   420, NULL,  -1, NULL, NULL,
     NULL, 'State of the connection, looked at every five seconds.'),
  ('Labels(3)',       180,  1965,  1500,   270, NULL,  -1, NULL, 'Error', NULL, NULL),
  ('txtError',       1800,  1890,  4320,   420, NULL,  -1, NULL, NULL,
     NULL, 'Number of the last error of the connection.'),
  -- commands
  ('cmdConnect',      180,  2610,  2850,   540, NULL,  -1, NULL, '&Connect',
     'Connects now', NULL),
  ('cmdDisConnect',  3270,  2610,  2850,   540, NULL,  -1, NULL, '&Disconnect',
     'Says good-bye and disconnects', NULL),
  ('WDT',            NULL,  NULL,  NULL,  NULL, NULL,  -1, NULL, NULL, NULL, NULL);
