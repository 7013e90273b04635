// The file engine on the real file system, without forms: what a job costs before anything is shown.
//
//   orvik-bench-engine walk FOLDER   WalkFiles
//   orvik-bench-engine fast FOLDER   WalkFiles, then the fast checksum of each file
//   orvik-bench-engine full FILE     the full checksum of a file
//
// Paths are Linux paths. Prints the number of files; for fast, the sum of the checksums behind it.
