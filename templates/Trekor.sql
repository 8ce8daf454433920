-- Trekor.mdb: the program's own texts. Words that the logic needs stand here; each form has a table in forms/, one row a
-- control, which this file is followed by.
--
-- A form's table: Left, Top, Width and Height are twips within the container, 15 to a pixel (null: none); Value is the state
-- of the control by its kind; Visible is -1 or 0; Tag holds flag letters: "C" on the row "Me" (height without the title
-- bar), "D" disabled and "H" hidden for ordinary users. A language has three columns: caption, tool tip, help. The row "Me"
-- is the form itself, its help the one of every control that has none.

CREATE TABLE Version (
  Major SMALLINT NOT NULL,
  Minor INTEGER  NOT NULL
);
-- The next one is 1.2: an update takes 1.1 for "never".
INSERT INTO Version(Major, Minor) VALUES (1, 0);

CREATE TABLE Text (
  TextID  TEXT(40) NOT NULL COLLATE NOCASE PRIMARY KEY,
  English TEXT(255)
);

INSERT INTO Text(TextID, English) VALUES
  -- titles of the prompts: the word, then what is asked
  ('W_Enter',   'Enter'),
  -- tool tips of the bar, by the key of the button
  ('T_play',    'Start a run, or go on after a pause (F2)'),
  ('T_pause',   'Pause the run and edit its latest rows (F3)'),
  ('T_stop',    'Stop the run and store its rows (F4)'),
  ('T_Camera1', 'Tell the control centre of an event (F11)');
